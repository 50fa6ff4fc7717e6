#pragma once

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QWidget>
#include <functional>
#include <optional>

#include "qt/view.h"

/// What a user types, as the logic takes it: character by character, each in the program's own set, Enter being 13.
namespace vorelio {

/// Takes one key of the program's character set.
using KeyTaker = std::function<void(int key)>;

/// The characters that a key press types: "\r" for Enter, empty for a key that types nothing (arrows, deletions,
/// shortcuts).
QString TypedCharacters(const QKeyEvent& event);

/// Whether a key press that types nothing is one that Qt's fields would type all the same: a letter with Alt that is no
/// mnemonic of the window.
bool TypesByMistake(const QKeyEvent& event);

/// Gives the characters of `typed` to `take` one by one. One outside the character set is refused with a notice at
/// `place`; the others are taken all the same.
void Type(const QString& typed, Gate& gate, QWidget& place, const KeyTaker& take);

/// The words for a character that the log can't hold.
QString RefusedCharacter(const QString& character);

/// What input methods and dead keys commit: gives it to `take`, and returns the event that is left for the widget
/// (the composition in progress), or nothing if the event commits nothing and the widget can have it as it is.
std::optional<QInputMethodEvent> TakeCommit(const QInputMethodEvent& event, Gate& gate, QWidget& place,
                                            const KeyTaker& take);

}  // namespace vorelio
