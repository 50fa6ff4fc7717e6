#pragma once

#include <string>

namespace vorelio {

/// The text of a file that another program has written: UTF-8 where the bytes are valid UTF-8 and hold a byte order
/// mark or one letter at least that Windows-1252 has too, with "?" for what it can't hold and without the mark;
/// Windows-1252 otherwise. A last Ctrl-Z ends the text.
std::string Texte_Recu(std::string octets);

}  // namespace vorelio
