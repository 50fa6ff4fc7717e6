#pragma once

#include <QComboBox>
#include <QElapsedTimer>

#include "qt/view.h"

namespace vorelio {

/// A combo box, editable or not. It completes nothing by itself, and a turning wheel leaves it alone.
class ComboView final : public ViewOf<ComboBox, QComboBox> {
 public:
  ComboView(ComboBox& combo, QComboBox& box, Gate& gate);

  bool eventFilter(QObject* watched, QEvent* event) override;
  void Focused() override;

 protected:
  void Show(Property property) override;
  void ShowColour() override;
  void ShowDeferred() override;

 private:
  void ShowText();
  void TakeEdit();
  void TakeKey(int key);
  bool TakeKeyPress(const QKeyEvent& event);

  QElapsedTimer since_key_;
  bool showing_ = false;
  bool items_changed_ = true;
};

}  // namespace vorelio
