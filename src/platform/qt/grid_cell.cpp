#include "platform/qt/grid_cell.h"

#include <QGridLayout>
#include <QKeyEvent>

namespace vorelio {

GridCell::GridCell(QWidget& holder, int columns) : QLineEdit(&holder), columns_(columns) {
  setFocusPolicy(Qt::ClickFocus);
  setAlignment(Qt::AlignCenter);
  setContextMenuPolicy(Qt::NoContextMenu);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setProperty("cellule", true);
}

QSize GridCell::sizeHint() const {
  return {fontMetrics().horizontalAdvance(QStringLiteral("00")) + 14, fontMetrics().height() + 6};
}

void GridCell::keyPressEvent(QKeyEvent* event) {
  int step = 0;
  switch (event->key()) {
    case Qt::Key_Left: step = -1; break;
    case Qt::Key_Right: step = 1; break;
    case Qt::Key_Up: step = -columns_; break;
    case Qt::Key_Down: step = columns_; break;
    default: QLineEdit::keyPressEvent(event); return;
  }
  const QLayout* grid = parentWidget()->layout();
  const QLayoutItem* next = grid->itemAt(grid->indexOf(this) + step);
  // The reason of a tab tells the model that the user has come here.
  if (next && next->widget()) next->widget()->setFocus(Qt::TabFocusReason);
}

}  // namespace vorelio
