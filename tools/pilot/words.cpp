#include "pilot/words.h"

#include "core/text.h"

namespace vorelio::pilot {

void Differs(std::string_view expected, std::string_view found) {
  throw Failure{"expected " + std::string(expected) + ", found " + std::string(found)};
}

std::string InQuotes(std::string_view utf8) {
  std::string quoted = "\"";
  for (const char c : utf8) {
    switch (c) {
      case '"': quoted += "\\\""; break;
      case '\\': quoted += "\\\\"; break;
      case '\r': quoted += "\\r"; break;
      case '\n': quoted += "\\n"; break;
      default: quoted += c;
    }
  }
  return quoted + '"';
}

std::string Shown(std::string_view text) { return InQuotes(Vers_Utf8(text)); }

}  // namespace vorelio::pilot
