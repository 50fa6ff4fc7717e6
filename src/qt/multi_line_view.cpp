#include "qt/multi_line_view.h"

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <QTextCursor>
#include <algorithm>

#include "qt/qt_text.h"
#include "qt/typing.h"

namespace vorelio {

MultiLineView::MultiLineView(TextField& field, QPlainTextEdit& edit, Gate& gate) : ViewOf(field, edit, gate) {
  edit.setTabChangesFocus(true);
  edit.viewport()->installEventFilter(this);
  connect(&edit, &QPlainTextEdit::textChanged, this, [this] { TakeEdit(); });
  // However the caret or the selection moves, by key, mouse or menu, the model follows.
  const auto moved = [this] { TellCaret(); };
  connect(&edit, &QPlainTextEdit::cursorPositionChanged, this, moved, Qt::QueuedConnection);
  connect(&edit, &QPlainTextEdit::selectionChanged, this, moved, Qt::QueuedConnection);
  ShowText();
}

void MultiLineView::Show(Property property) {
  if (property == Property::Text) ShowText();
  if (property == Property::Text || property == Property::Caret) ShowCaret();
}

QString MultiLineView::Shown() const {
  // The plain text would have blanks in place of the fixed ones.
  return shown_.document()->toRawText().replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

int MultiLineView::ToModel(int place) const {
  const QString text = Shown().left(place);
  return place + static_cast<int>(text.count(u'\n'));
}

int MultiLineView::ToWidget(int place) const {
  const std::string& text = control_.Text();
  const auto end = text.begin() + std::min<std::ptrdiff_t>(place, static_cast<std::ptrdiff_t>(text.size()));
  return place - static_cast<int>(std::count(text.begin(), end, '\r'));
}

void MultiLineView::ShowText() {
  const QScopedValueRollback<bool> showing(showing_, true);
  shown_.setReadOnly(control_.ReadOnly());
  const QString text = ToQt(control_.Text()).remove(u'\r');
  const QString before = Shown();
  if (text == before) return;
  // What is the same at both ends stays, so that undo takes back what was done, and the lines in sight stay in place.
  const auto shorter = std::min(text.size(), before.size());
  const auto head = std::mismatch(text.begin(), text.begin() + shorter, before.begin()).first - text.begin();
  qsizetype tail = 0;
  while (tail < shorter - head && text[text.size() - 1 - tail] == before[before.size() - 1 - tail]) ++tail;
  QTextCursor changed(shown_.document());
  changed.setPosition(static_cast<int>(head));
  changed.setPosition(static_cast<int>(before.size() - tail), QTextCursor::KeepAnchor);
  changed.insertText(text.mid(head, text.size() - head - tail));
}

void MultiLineView::ShowCaret() {
  const QScopedValueRollback<bool> showing(showing_, true);
  QTextCursor cursor = shown_.textCursor();
  const int start = ToWidget(control_.Caret()), end = ToWidget(control_.Caret() + control_.SelectionLength());
  // Set anew a selection would run from left to right, whichever way the user draws it.
  if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
  cursor.setPosition(start);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  shown_.setTextCursor(cursor);
}

void MultiLineView::TellCaret() {
  if (!Bound() || showing_) return;
  const QTextCursor cursor = shown_.textCursor();
  const int caret = ToModel(cursor.selectionStart());
  const int length = ToModel(cursor.selectionEnd()) - caret;
  if (caret != control_.Caret() || length != control_.SelectionLength())
    Deliver([&] { control_.UserCaret(caret, length); });
}

void MultiLineView::TakeEdit() {
  if (showing_ || !Bound()) return;
  const QString text = Shown();
  if (const auto bytes = FromQtExact(QString(text).replace(u'\n', QStringLiteral("\r\n")))) {
    const int caret = ToModel(shown_.textCursor().position());
    Deliver([&] { control_.UserText(*bytes, caret); });
  } else {
    gate_.Notice(shown_, RefusedCharacter(FirstForeign(text)));
  }
  if (!Bound()) return;
  ShowText();
  ShowCaret();
}

void MultiLineView::TakeKey(int key) {
  if (!Bound()) return;
  TellCaret();
  Deliver([&] { control_.UserKey(key); });
}

bool MultiLineView::eventFilter(QObject* watched, QEvent* event) {
  if (!Bound()) return false;
  const KeyTaker take = [this](int key) { TakeKey(key); };
  if (event->type() == QEvent::KeyPress) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const QString typed = TypedCharacters(key);
    if (!typed.isEmpty()) Type(typed, gate_, shown_, take);
    if (TypesByMistake(key)) event->ignore();
    if (!typed.isEmpty() || TypesByMistake(key)) return true;
  } else if (event->type() == QEvent::InputMethod) {
    if (auto rest = TakeCommit(static_cast<const QInputMethodEvent&>(*event), gate_, shown_, take)) {
      QCoreApplication::sendEvent(&shown_, &*rest);
      return true;
    }
  }
  return ViewOf::eventFilter(watched, event);
}

}  // namespace vorelio
