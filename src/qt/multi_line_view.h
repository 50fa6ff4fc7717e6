#pragma once

#include <QPlainTextEdit>

#include "qt/view.h"

namespace vorelio {

/// A text field of several lines. The model's line ends are CR LF, the widget's one character.
class MultiLineView final : public ViewOf<TextField, QPlainTextEdit> {
 public:
  MultiLineView(TextField& field, QPlainTextEdit& edit, Gate& gate);

  bool eventFilter(QObject* watched, QEvent* event) override;
  void Focused() override { ShowCaret(); }

 protected:
  void Show(Property property) override;

 private:
  /// The widget's text, its lines parted by LF.
  QString Shown() const;
  void ShowText();
  void ShowCaret();
  void TellCaret();
  void TakeEdit();
  void TakeKey(int key);
  /// Place in the model's text of a place in the widget's, and back.
  int ToModel(int place) const;
  int ToWidget(int place) const;

  bool showing_ = false;
};

}  // namespace vorelio
