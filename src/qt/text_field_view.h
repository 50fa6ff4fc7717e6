#pragma once

#include <QLineEdit>

#include "qt/view.h"

namespace vorelio {

/// A text field of one line. Typed characters go to the model one by one, so that its `KeyPress` runs before they
/// join; deletions, pastes and undo are the widget's, and are told afterwards.
class TextFieldView final : public ViewOf<TextField, QLineEdit> {
 public:
  TextFieldView(TextField& field, QLineEdit& edit, Gate& gate);

  bool eventFilter(QObject* watched, QEvent* event) override;
  void Focused() override;

 protected:
  void Show(Property property) override;

 private:
  void ShowText();
  void ShowCaret();
  void TellCaret();
  void TakeEdit();
  void TakeKey(int key);
  void GoOn();
  bool HasFocus() const;

  bool showing_ = false;
  bool typing_ = false;
};

}  // namespace vorelio
