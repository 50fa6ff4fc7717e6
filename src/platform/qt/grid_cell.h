#pragma once

#include <QLineEdit>

namespace vorelio {

/// A cell of a grid of fields: reached by a click or from its neighbours with the arrow keys. Only the first one is in
/// the tab chain, and not even that where the grid has the property "hors_chaine".
class GridCell : public QLineEdit {
 public:
  explicit GridCell(QWidget& holder);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace vorelio
