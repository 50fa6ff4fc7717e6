#include "qt/combo_view.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>

#include "qt/qt_text.h"
#include "qt/typing.h"

namespace vorelio {

namespace {
/// Characters typed into a closed choice box faster than this make up one word to look for.
constexpr int kPause_ms = 1000;
}  // namespace

ComboView::ComboView(ComboBox& combo, QComboBox& box, Gate& gate) : ViewOf(combo, box, gate) {
  box.setEditable(combo.Genre() == ComboBox::Kind::Editable);
  box.setInsertPolicy(QComboBox::NoInsert);
  // All the bands at a glance.
  box.setMaxVisibleItems(20);
  box.setFocusPolicy(Qt::StrongFocus);
  // Its rows come after its first being shown.
  if (box.sizeAdjustPolicy() == QComboBox::AdjustToContentsOnFirstShow)
    box.setSizeAdjustPolicy(QComboBox::AdjustToContents);
  if (box.isEditable()) box.setCompleter(nullptr);
  // The box has the focus and hands its events to its field; the field's own are those of the mouse.
  if (QLineEdit* edit = box.lineEdit()) {
    edit->installEventFilter(this);
    // The box would look for a row by itself when the field is left, and take it for a choice of the user's.
    for (const auto left : {&QLineEdit::editingFinished, &QLineEdit::returnPressed})
      disconnect(edit, left, &box, nullptr);
    connect(edit, &QLineEdit::textEdited, this, [this] { TakeEdit(); });
  }
  // Also the choice of the row that is selected already.
  connect(&box, &QComboBox::activated, this, [this](int row) {
    if (!Bound()) return;
    Deliver([&] { control_.UserSelect(row); });
    if (Bound()) ShowText();
  });
  ShowDeferred();
}

void ComboView::Show(Property property) {
  if (property == Property::Items) items_changed_ = true;
  if (property == Property::Items || property == Property::ListIndex) Defer();
  // A row that is selected also puts its text in the field: both are shown together.
  if (property == Property::Text && !items_changed_) ShowText();
}

void ComboView::ShowDeferred() {
  const QScopedValueRollback<bool> showing(showing_, true);
  if (items_changed_) {
    items_changed_ = false;
    QStringList rows;
    for (const std::string_view item : control_.Items()) rows << ToQt(item);
    shown_.clear();
    shown_.addItems(rows);
  }
  ShowText();
}

void ComboView::ShowText() {
  const QScopedValueRollback<bool> showing(showing_, true);
  const QString text = ToQt(control_.Text());
  // Before the row: taken away, the text in a row's place leaves the first row selected.
  if (!shown_.lineEdit()) shown_.setPlaceholderText(text);
  if (shown_.currentIndex() != control_.ListIndex()) shown_.setCurrentIndex(control_.ListIndex());
  if (QLineEdit* edit = shown_.lineEdit()) {
    if (edit->text() != text) edit->setText(text);
    // The next character takes the place of a text that was chosen, and joins one that was typed.
    if (control_.ReplacedByKey() && shown_.window()->focusWidget() == &shown_) edit->selectAll();
  }
}

void ComboView::ShowColour() {
  WidgetView::ShowColour();
  shown_.view()->setPalette(QPalette());
}

void ComboView::Focused() {
  if (QLineEdit* edit = shown_.lineEdit(); edit && control_.ReplacedByKey()) edit->selectAll();
}

void ComboView::TakeEdit() {
  if (showing_ || !Bound()) return;
  const QString text = shown_.lineEdit()->text();
  if (const auto bytes = FromQtExact(text))
    Deliver([&] { control_.UserText(*bytes); });
  else
    gate_.Notice(shown_, RefusedCharacter(FirstForeign(text)));
  if (!Bound()) return;
  const int caret = shown_.lineEdit()->cursorPosition();
  ShowText();
  shown_.lineEdit()->setCursorPosition(caret);
}

void ComboView::TakeKey(int key) {
  if (!Bound()) return;
  if (!since_key_.isValid() || since_key_.hasExpired(kPause_ms)) control_.UserKeysBegin();
  since_key_.start();
  QLineEdit* edit = shown_.lineEdit();
  // The model adds to the end of the text; a caret in the middle of it is the widget's to know.
  const QString old = edit ? edit->text() : QString();
  const bool selected = edit && edit->hasSelectedText();
  const qsizetype start = !edit ? 0 : selected ? edit->selectionStart() : edit->cursorPosition();
  const qsizetype length = selected ? edit->selectionLength() : 0;
  Deliver([&] { control_.UserKey(key); });
  if (!Bound()) return;
  if (QPushButton* acting = key == kEntree ? ActingButton(shown_) : nullptr) return acting->click();
  if (!edit || key < ' ') return;
  const QString now = ToQt(control_.Text());
  const bool inside = start + length < old.size() || (length > 0 && length < old.size());
  const bool joined = !now.isEmpty() && (now.size() == 1 || now == old + now.back());
  if (!inside || !joined) return;
  const QString placed = old.left(start) + now.back() + old.mid(start + length);
  Deliver([&] { control_.UserText(FromQt(placed)); });
  if (Bound()) edit->setCursorPosition(static_cast<int>(start) + 1);
}

bool ComboView::TakeKeyPress(const QKeyEvent& event) {
  const QString typed = TypedCharacters(event);
  if (typed.isEmpty()) return false;
  // A blank opens a closed list, unless it belongs to a word being typed.
  const bool opens = typed == QStringLiteral(" ") && !shown_.isEditable() &&
                     (!since_key_.isValid() || since_key_.hasExpired(kPause_ms));
  if (opens) return false;
  Type(typed, gate_, shown_, [this](int key) { TakeKey(key); });
  return true;
}

bool ComboView::eventFilter(QObject* watched, QEvent* event) {
  if (!Bound()) return false;
  switch (event->type()) {
    case QEvent::KeyPress:
      if (TakeKeyPress(static_cast<const QKeyEvent&>(*event))) return true;
      if (TypesByMistake(static_cast<const QKeyEvent&>(*event))) {
        event->ignore();
        return true;
      }
      break;
    case QEvent::InputMethod:
      if (auto rest = TakeCommit(static_cast<const QInputMethodEvent&>(*event), gate_, shown_,
                                 [this](int key) { TakeKey(key); })) {
        QCoreApplication::sendEvent(watched, &*rest);
        return true;
      }
      break;
    case QEvent::Wheel: event->ignore(); return true;
    case QEvent::FocusIn:
      control_.UserKeysBegin();
      if (const auto reason = static_cast<const QFocusEvent*>(event)->reason();
          reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason)
        control_.UserEnter();
      break;
    default: break;
  }
  return ViewOf::eventFilter(watched, event);
}

}  // namespace vorelio
