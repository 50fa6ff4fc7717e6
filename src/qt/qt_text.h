#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

/// The edge between the program's texts (Windows-1252 bytes) and Qt's.
namespace vorelio {

QString ToQt(std::string_view text);

/// What the program's character set can't hold becomes "?".
std::string FromQt(const QString& text);

/// The text in the program's character set, or nothing if one character has no place in it. Decomposed characters (a
/// letter and its accent) count as the composed one.
std::optional<std::string> FromQtExact(const QString& text);

/// The first character of a text that the program's character set can't hold, empty if there is none.
QString FirstForeign(const QString& text);

/// A caption as a menu, a button or a label with a buddy shows it: its own "&" isn't taken for a mnemonic.
QString Escaped(const QString& caption);

/// The words of a widget's text without the marks of mnemonics.
QString WithoutMnemonic(const QString& text);

}  // namespace vorelio
