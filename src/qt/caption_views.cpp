#include "qt/caption_views.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "qt/qt_text.h"

namespace vorelio {

QString CaptionToShow(const QString& designed, const std::string& caption) {
  const QString words = ToQt(caption);
  return WithoutMnemonic(designed) == words ? designed : Escaped(words);
}

// --- Label ----------------------------------------------------------------------------------------------------------

LabelView::LabelView(Label& label, QLabel& shown, Gate& gate) : ViewOf(label, shown, gate) {
  shown.setTextFormat(Qt::PlainText);
  Show(Property::Caption);
}

void LabelView::Show(Property property) {
  if (property != Property::Caption) return;
  // Blanks that once centred a caption by eye give way where the design centres it.
  const QString words = ToQt(control_.Caption());
  const QString shown = shown_.property("rogne").toBool() ? words.trimmed() : words;
  if (WithoutMnemonic(shown_.text()) == shown) return;
  shown_.setText(shown_.buddy() ? Escaped(shown) : shown);
}

void LabelView::ShowColour() {
  PaintField(shown_, control_.Colour());
  if (auto* plate = dynamic_cast<CaptionLabel*>(&shown_)) plate->SetPlate(!SystemColour(control_.Colour()));
}

void CaptionLabel::SetPlate(bool plate) {
  plate_ = plate;
  update();
}

/// On a screen of another scale letters may run a little wider than their measure: the last one isn't to be cut.
QSize CaptionLabel::Whole(const QSize& size) const {
  constexpr int kMore = 2;
  const bool scaled = devicePixelRatioF() != 1 && !text().isEmpty() && !wordWrap();
  return scaled ? size + QSize(kMore, 0) : size;
}

void CaptionLabel::PaintHeading() {
  for (const QString& heading : property("titres").toString().split(u'|')) {
    const std::vector<ColumnTitle> titles = ParseTitles(heading);
    QStringList words;
    for (const ColumnTitle& title : titles) words << title.words;
    if (words.join(u' ') == text().simplified()) return rows_->PaintTitles(*this, titles);
  }
  rows_->PaintTitles(*this, {{text(), 1}});
}

void CaptionLabel::paintEvent(QPaintEvent* event) {
  if (rows_) return PaintHeading();
  if (plate_) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawRoundedRect(rect(), 4, 4);
  }
  QLabel::paintEvent(event);
}

// --- Frame ----------------------------------------------------------------------------------------------------------

FrameView::FrameView(Frame& frame, QWidget& shown, Gate& gate) : ViewOf(frame, shown, gate) { Show(Property::Caption); }

void FrameView::Show(Property property) {
  if (property != Property::Caption) return;
  const QString words = ToQt(control_.Caption());
  if (auto* box = qobject_cast<QGroupBox*>(&shown_)) {
    box->setTitle(Escaped(words.trimmed()));
  } else if (auto* title = shown_.findChild<QLabel*>(QStringLiteral("titre_") + shown_.objectName())) {
    title->setText(words);
  }
  shown_.setAccessibleName(words.trimmed());
}

// --- Controls to click on -------------------------------------------------------------------------------------------

ClickView::ClickView(Captioned& control, QAbstractButton& button, Gate& gate)
    : WidgetView(control, button, gate), captioned_(control), button_(button), designed_(button.text()) {
  ShowCaption();
  connect(&button, &QAbstractButton::clicked, this, [this] { TakeClick(); });
}

void ClickView::TakeClick() {
  if (!Bound()) return;
  Deliver([this] { Click(); });
  // The widget has ticked itself; what is true is the model's word.
  if (Bound()) Show(Property::Checked);
}

/// Space ticks; Enter is for the button that acts, where the window has one.
void ClickView::TakeEnter() {
  QPushButton* acting = button_.isCheckable() ? ActingButton(button_) : nullptr;
  acting ? acting->click() : TakeClick();
}

/// A button that has two captions in turn has the other one, with its own key, in its property "autre_texte".
void ClickView::ShowCaption() {
  const QString other = button_.property("autre_texte").toString();
  const bool is_other = !other.isEmpty() && WithoutMnemonic(other) == ToQt(captioned_.Caption());
  button_.setText(CaptionToShow(is_other ? other : designed_, captioned_.Caption()));
}

/// The arrow keys go from option to option. Left to itself the widget would take the focus back after the click, from
/// wherever the click has sent it.
bool ClickView::GoToNeighbour(int key) {
  const bool back = key == Qt::Key_Left || key == Qt::Key_Up;
  if (!qobject_cast<QRadioButton*>(&button_) || (!back && key != Qt::Key_Right && key != Qt::Key_Down)) return false;
  QList<QRadioButton*> options = button_.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
  options.removeIf([](const QRadioButton* option) { return !option->isEnabled() || !option->isVisible(); });
  const auto here = options.indexOf(qobject_cast<QRadioButton*>(&button_));
  if (here < 0 || options.size() < 2) return false;
  QRadioButton* next = options[(here + (back ? options.size() - 1 : 1)) % options.size()];
  next->setFocus(back ? Qt::BacktabFocusReason : Qt::TabFocusReason);
  next->click();
  return true;
}

void ClickView::Show(Property property) {
  if (property == Property::Caption) ShowCaption();
  if (property == Property::Checked && button_.isCheckable()) {
    // A button of a Qt group refuses to be cleared alone; the groups are the model's.
    const bool exclusive = button_.autoExclusive();
    button_.setAutoExclusive(false);
    button_.setChecked(Checked());
    button_.setAutoExclusive(exclusive);
    if (exclusive) ShowStop();
  }
}

/// Of several options the chosen one is the stop of the tab chain, from the first press of the key on; Qt would settle
/// this when one of them first has the focus.
void ClickView::ShowStop() {
  const auto options = button_.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
  const bool chosen =
      std::any_of(options.begin(), options.end(), [](const auto* option) { return option->isChecked(); });
  for (QRadioButton* option : options)
    option->setFocusPolicy(!chosen || option->isChecked() ? Qt::StrongFocus
                                                          : Qt::FocusPolicy(Qt::StrongFocus & ~Qt::TabFocus));
}

bool ClickView::eventFilter(QObject* watched, QEvent* event) {
  if (Bound() && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (GoToNeighbour(key)) return true;
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      TakeEnter();
      return true;
    }
  }
  return WidgetView::eventFilter(watched, event);
}

}  // namespace vorelio
