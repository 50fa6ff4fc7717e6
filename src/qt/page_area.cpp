#include "qt/page_area.h"

#include <QApplication>
#include <QEvent>

namespace vorelio {

PageArea::PageArea(QWidget* parent) : QScrollArea(parent) {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (now && widget() && widget()->isAncestorOf(now)) ensureWidgetVisible(now, 20, 40);
  });
}

// Qt's own takes the size that the contents had at first.
QSize PageArea::sizeHint() const { return widget() ? widget()->sizeHint() : QScrollArea::sizeHint(); }

bool PageArea::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace vorelio
