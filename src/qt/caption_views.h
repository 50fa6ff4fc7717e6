#pragma once

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

#include "qt/rows_view.h"
#include "qt/view.h"

/// Views of the controls that are a caption, and something to click on with some of them. The captions of the .ui
/// files bear mnemonics; one that reads the same in the model keeps them.
namespace vorelio {

/// A label that a colour of the model makes a coloured plate.
class CaptionLabel : public QLabel {
 public:
  using QLabel::QLabel;

  void SetPlate(bool plate);

  /// Makes the label the strip of titles of a list. Its words stand where its property "titres" says, which has the
  /// titles of each heading that it may bear, with "|" between.
  void SetHeadingOf(const RowsView& rows) { rows_ = &rows; }

  QSize sizeHint() const override { return Whole(QLabel::sizeHint()); }
  QSize minimumSizeHint() const override { return Whole(QLabel::minimumSizeHint()); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintHeading();
  QSize Whole(const QSize& size) const;

  bool plate_ = false;
  const RowsView* rows_ = nullptr;
};

/// Shows the words of a label.
class LabelView final : public ViewOf<Label, QLabel> {
 public:
  LabelView(Label& label, QLabel& shown, Gate& gate);

 protected:
  void Show(Property property) override;
  void ShowColour() override;
};

/// A frame: a group box with its caption as its title, or any widget, whose caption stands in its label
/// "titre_<name>".
class FrameView final : public ViewOf<Frame, QWidget> {
 public:
  FrameView(Frame& frame, QWidget& shown, Gate& gate);

 protected:
  void Show(Property property) override;
  void ShowColour() override {}
};

/// What buttons, check boxes and option buttons share.
class ClickView : public WidgetView {
 public:
  ClickView(Captioned& control, QAbstractButton& button, Gate& gate);

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  virtual void Click() = 0;
  virtual bool Checked() const { return false; }
  void Show(Property property) override;

 private:
  void TakeClick();
  void TakeEnter();
  void ShowCaption();
  bool GoToNeighbour(int key);
  void ShowStop();

  Captioned& captioned_;
  QAbstractButton& button_;
  QString designed_;
};

/// `C` is Button, CheckBox or OptionButton.
template <typename C>
class ClickViewOf : public ClickView {
 public:
  ClickViewOf(C& control, QAbstractButton& button, Gate& gate) : ClickView(control, button, gate), control_(control) {
    Show(Property::Checked);
  }

 protected:
  void Click() override { control_.UserClick(); }
  bool Checked() const override {
    if constexpr (requires { control_.Checked(); }) return control_.Checked();
    if constexpr (requires { control_.Set(); }) return control_.Set();
    return false;
  }

 private:
  C& control_;
};

/// The words to show for a model's caption: those of the design with their mnemonic if they read the same.
QString CaptionToShow(const QString& designed, const std::string& caption);

}  // namespace vorelio
