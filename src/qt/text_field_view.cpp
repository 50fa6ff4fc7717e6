#include "qt/text_field_view.h"

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <algorithm>

#include "qt/qt_text.h"
#include "qt/typing.h"

namespace vorelio {

namespace {

/// A pasted or dropped text on one line.
QString OnOneLine(QString text) {
  text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
  for (QChar& character : text)
    if (character == u'\n' || character == u'\r' || character == u'\t' || character == QChar::LineSeparator ||
        character == QChar::ParagraphSeparator)
      character = u' ';
  return text.normalized(QString::NormalizationForm_C);
}

}  // namespace

TextFieldView::TextFieldView(TextField& field, QLineEdit& edit, Gate& gate) : ViewOf(field, edit, gate) {
  connect(&edit, &QLineEdit::textEdited, this, [this] { TakeEdit(); });
  ShowText();
}

void TextFieldView::Show(Property property) {
  if (property == Property::Text) ShowText();
  if (property == Property::Text || property == Property::Caret) ShowCaret();
}

bool TextFieldView::HasFocus() const { return shown_.window()->focusWidget() == &shown_; }

void TextFieldView::Focused() { ShowCaret(); }

void TextFieldView::ShowText() {
  const QScopedValueRollback<bool> showing(showing_, true);
  shown_.setReadOnly(control_.ReadOnly());
  const QString text = ToQt(control_.Text());
  const QString old = shown_.text();
  if (text == old) return;
  if (!typing_) {
    shown_.setText(text);
    return;
  }
  // Only what differs is replaced, for the widget's undo to reach back over what was typed.
  const auto [old_end, new_end] = std::mismatch(old.begin(), old.end(), text.begin(), text.end());
  const qsizetype head = old_end - old.begin();
  const qsizetype most = std::min(old.size(), text.size()) - head;
  qsizetype tail = 0;
  while (tail < most && old[old.size() - 1 - tail] == text[text.size() - 1 - tail]) ++tail;
  shown_.setSelection(static_cast<int>(head), static_cast<int>(old.size() - head - tail));
  shown_.insert(text.mid(head, text.size() - head - tail));
}

// A field without the focus shows no selection.
void TextFieldView::ShowCaret() {
  if (!HasFocus()) return;
  const QScopedValueRollback<bool> showing(showing_, true);
  // Set anew it would run from left to right, whichever way the user draws it.
  const bool stands = shown_.hasSelectedText() && shown_.selectionStart() == control_.Caret() &&
                      shown_.selectionLength() == control_.SelectionLength();
  if (stands) return;
  if (control_.SelectionLength() > 0)
    shown_.setSelection(control_.Caret(), control_.SelectionLength());
  else
    shown_.setCursorPosition(control_.Caret());
}

void TextFieldView::TellCaret() {
  if (!Bound() || !HasFocus()) return;
  const bool selected = shown_.hasSelectedText();
  const int caret = selected ? shown_.selectionStart() : shown_.cursorPosition();
  const int length = selected ? shown_.selectionLength() : 0;
  if (caret != control_.Caret() || length != control_.SelectionLength())
    Deliver([&] { control_.UserCaret(caret, length); });
}

void TextFieldView::TakeEdit() {
  if (showing_ || !Bound()) return;
  const QString text = OnOneLine(shown_.text());
  const int caret = shown_.cursorPosition();
  if (const auto bytes = FromQtExact(text))
    Deliver([&] { control_.UserText(*bytes, caret); });
  else
    gate_.Notice(shown_, RefusedCharacter(FirstForeign(text)));
  if (!Bound()) return;
  // What was refused, by the character set or by the logic, goes from the widget too.
  ShowText();
  ShowCaret();
}

void TextFieldView::TakeKey(int key) {
  if (!Bound()) return;
  TellCaret();
  const QScopedValueRollback<bool> typing(typing_, true);
  Deliver([&] { control_.UserKey(key); });
  if (Bound() && key == kEntree) GoOn();
}

/// In windows that are no chain of fields, Enter goes on to the field, or presses the button, that the property
/// "entree" names, or "entree_remplie" where an empty field has nothing to be pressed for.
void TextFieldView::GoOn() {
  QString name = shown_.property("entree").toString();
  if (name.isEmpty() && !shown_.text().isEmpty()) name = shown_.property("entree_remplie").toString();
  if (name.isEmpty() || !HasFocus()) return;
  Control* next = control_.Parent().Find(name.toStdString());
  if (auto* button = dynamic_cast<Button*>(next))
    Deliver([&] { button->UserClick(); });
  else if (next)
    Deliver([&] { next->SetFocus(); });
}

bool TextFieldView::eventFilter(QObject* watched, QEvent* event) {
  if (!Bound()) return false;
  const KeyTaker take = [this](int key) { TakeKey(key); };
  switch (event->type()) {
    case QEvent::KeyPress: {
      const auto& key = static_cast<const QKeyEvent&>(*event);
      // A cell opens its list. A field that is typed into isn't emptied by a key that says nothing about it.
      const bool opens = key.key() == Qt::Key_F2 && control_.DblClick && control_.ReadOnly();
      if (opens) Deliver([this] { control_.UserDblClick(); });
      const QString typed = opens ? QString() : TypedCharacters(key);
      if (!typed.isEmpty()) Type(typed, gate_, shown_, take);
      if (opens || !typed.isEmpty()) return true;
      if (TypesByMistake(key)) {
        event->ignore();
        return true;
      }
      break;
    }
    case QEvent::InputMethod:
      if (auto rest = TakeCommit(static_cast<const QInputMethodEvent&>(*event), gate_, shown_, take)) {
        QCoreApplication::sendEvent(&shown_, &*rest);
        return true;
      }
      break;
    case QEvent::MouseButtonDblClick:
      if (control_.DblClick) {
        // The widget's own use of it, selecting a word, gives way.
        Deliver([this] { control_.UserDblClick(); });
        return true;
      }
      break;
    case QEvent::MouseButtonRelease:
    case QEvent::KeyRelease: {
      const bool click = control_.Click && event->type() == QEvent::MouseButtonRelease &&
                         static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
      // After what the widget makes of the event.
      const auto tell = [this, click] {
        TellCaret();
        if (click && Bound()) Deliver([this] { control_.UserClick(); });
      };
      QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
      break;
    }
    default: break;
  }
  return ViewOf::eventFilter(watched, event);
}

}  // namespace vorelio
