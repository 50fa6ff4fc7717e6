#include "qt/window_fit.h"

#include <QMainWindow>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

namespace vorelio {

namespace {

/// What the frame of a window takes: unknown before the window has been on the screen.
constexpr QSize kFrame{16, 40};

bool Exceeds(const QSize& size, const QSize& room) {
  return size.width() > room.width() || size.height() > room.height();
}

QScrollArea* MakePage(QWidget& window, QWidget& contents) {
  auto* page = new QScrollArea(&window);
  page->setFrameShape(QFrame::NoFrame);
  page->setWidgetResizable(true);
  page->setFocusPolicy(Qt::NoFocus);
  page->setWidget(&contents);
  return page;
}

void PutOnPage(QWidget& window) {
  if (window.findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly)) return;
  if (auto* main = qobject_cast<QMainWindow*>(&window)) {
    if (QWidget* centre = main->centralWidget()) main->setCentralWidget(MakePage(window, *centre));
    return;
  }
  // The contents stay within their window on the way: a change of the window would cost them the tab chain.
  auto* contents = new QWidget(&window);
  contents->setLayout(window.layout());
  auto* whole = new QVBoxLayout(&window);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(MakePage(window, *contents));
}

}  // namespace

QSize WithFrame(const QWidget& window) {
  const QSize framed = window.frameGeometry().size();
  return framed == window.size() ? framed + kFrame : framed;
}

QSize RoomFor(const QWidget& window) {
  const QSize room = window.screen()->availableSize() - kFrame;
  return room.isEmpty() ? QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) : room;
}

void FitOnScreen(QWidget& window) {
  if (!window.layout()) return;
  const QSize room = RoomFor(window), least = window.minimumSizeHint();
  QSize wanted = window.size().expandedTo(window.minimumSize());
  if (Exceeds(least, room)) {
    PutOnPage(window);
    // Room for the scroll bar of one way, lest it calls for the other one too.
    const int bar = window.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &window);
    wanted = wanted.expandedTo(least + QSize(bar, bar));
  }
  if (!Exceeds(wanted, room)) return;
  window.setMinimumSize(window.minimumSize().boundedTo(room));
  window.resize(wanted.boundedTo(room));
}

void FollowContents(QWidget& window) {
  if (window.layout() && Exceeds(window.minimumSizeHint(), RoomFor(window))) FitOnScreen(window);
}

}  // namespace vorelio
