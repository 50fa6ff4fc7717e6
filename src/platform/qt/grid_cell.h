#pragma once

#include <QLineEdit>

namespace vorelio {

/// A cell of a grid of fields: out of the tab chain, reached by a click or from its neighbours with the arrow keys.
class GridCell : public QLineEdit {
 public:
  explicit GridCell(QWidget& holder);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace vorelio
