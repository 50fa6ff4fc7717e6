#pragma once

#include <QLineEdit>

namespace vorelio {

/// A field among many: reached by a click, or from its neighbours with the arrow keys. Of the cells of a holder only
/// the first one that can be seen is in the tab chain, and not even that where the holder has the property
/// "hors_chaine".
class ArrowCell : public QLineEdit {
 public:
  explicit ArrowCell(QWidget& holder);

 protected:
  /// The next cell in a direction, one step to the right or down being 1; null where there is none.
  virtual QWidget* Neighbour(QPoint ahead) const = 0;

  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace vorelio
