#pragma once

#include <string>

namespace vorelio {

/// The text of a file that another program has written: UTF-8 where the bytes are valid UTF-8 and not mere ASCII, with
/// "?" for what the program's set can't hold and without a byte order mark; Windows-1252 otherwise.
std::string Texte_Recu(std::string octets);

}  // namespace vorelio
