#include "qt/typing.h"

#include "core/text.h"
#include "qt/qt_text.h"

namespace vorelio {

namespace {
bool Printable(const QString& text) { return !text.isEmpty() && (text[0].isPrint() || text[0].isSurrogate()); }
}  // namespace

QString TypedCharacters(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) return QStringLiteral("\r");
  const Qt::KeyboardModifiers held = event.modifiers();
  // Control and Alt together are AltGr on some keyboards, and type characters; one of them alone is a shortcut.
  const bool control = held.testFlag(Qt::ControlModifier), alt = held.testFlag(Qt::AltModifier);
  if (control != alt || held.testFlag(Qt::MetaModifier)) return {};
  return Printable(event.text()) ? event.text() : QString();
}

bool TypesByMistake(const QKeyEvent& event) {
  return !event.modifiers().testFlag(Qt::ControlModifier) && TypedCharacters(event).isEmpty() &&
         Printable(event.text());
}

QString RefusedCharacter(const QString& character) {
  return QStringLiteral("Ce caractère ne peut pas être noté dans le journal : ") + character;
}

void Type(const QString& typed, Gate& gate, QWidget& place, const KeyTaker& take) {
  for (const char32_t point : typed.normalized(QString::NormalizationForm_C).toUcs4()) {
    if (const auto byte = Octet_1252(point))
      take(static_cast<unsigned char>(*byte));
    else
      gate.Notice(place, RefusedCharacter(QString::fromUcs4(&point, 1)));
  }
}

std::optional<QInputMethodEvent> TakeCommit(const QInputMethodEvent& event, Gate& gate, QWidget& place,
                                            const KeyTaker& take) {
  if (event.commitString().isEmpty()) return std::nullopt;
  Type(event.commitString(), gate, place, take);
  return std::optional<QInputMethodEvent>(std::in_place, event.preeditString(), event.attributes());
}

}  // namespace vorelio
