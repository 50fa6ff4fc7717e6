#include "platform/qt/grid_cell.h"

#include <QGridLayout>
#include <QKeyEvent>

namespace vorelio {

GridCell::GridCell(QWidget& holder) : QLineEdit(&holder) {
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
  int down = 0, right = 0;
  switch (event->key()) {
    case Qt::Key_Left: right = -1; break;
    case Qt::Key_Right: right = 1; break;
    case Qt::Key_Up: down = -1; break;
    case Qt::Key_Down: down = 1; break;
    default: QLineEdit::keyPressEvent(event); return;
  }
  const auto* grid = qobject_cast<QGridLayout*>(parentWidget()->layout());
  int row = 0, column = 0, rows = 0, columns = 0;
  grid->getItemPosition(grid->indexOf(this), &row, &column, &rows, &columns);
  const QLayoutItem* next = grid->itemAtPosition(row + down, column + right);
  // The reason of a tab tells the model that the user has come here. Titles beside the cells take no focus.
  if (next && dynamic_cast<GridCell*>(next->widget())) next->widget()->setFocus(Qt::TabFocusReason);
}

}  // namespace vorelio
