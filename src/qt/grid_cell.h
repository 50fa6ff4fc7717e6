#pragma once

#include "qt/arrow_cell.h"

namespace vorelio {

/// A cell of a grid of fields.
class GridCell : public ArrowCell {
 public:
  explicit GridCell(QWidget& holder);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  QWidget* Neighbour(QPoint ahead) const override;
};

}  // namespace vorelio
