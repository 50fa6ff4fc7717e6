#include "qt/grid_cell.h"

#include <QGridLayout>

namespace vorelio {

GridCell::GridCell(QWidget& holder) : ArrowCell(holder) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize GridCell::sizeHint() const {
  return {fontMetrics().horizontalAdvance(QStringLiteral("00")) + 14, fontMetrics().height() + 6};
}

QWidget* GridCell::Neighbour(QPoint ahead) const {
  const auto* grid = qobject_cast<QGridLayout*>(parentWidget()->layout());
  int row = 0, column = 0, rows = 0, columns = 0;
  grid->getItemPosition(grid->indexOf(this), &row, &column, &rows, &columns);
  const QLayoutItem* next = grid->itemAtPosition(row + ahead.y(), column + ahead.x());
  // Titles beside the cells take no focus.
  return next ? dynamic_cast<GridCell*>(next->widget()) : nullptr;
}

}  // namespace vorelio
