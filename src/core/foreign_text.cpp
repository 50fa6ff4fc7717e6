#include "core/foreign_text.h"

#include <numeric>
#include <string_view>

#include "core/text.h"

namespace vorelio {

namespace {

constexpr std::string_view kMarque_Utf8 = "\xEF\xBB\xBF";

/// Whether the bytes are UTF-8. Two or three letters of Windows-1252 may happen to be a valid sequence, "É…" is one:
/// what speaks for UTF-8 is a sequence that another program may have made of a letter of this set.
bool En_Utf8(std::string_view octets) {
  bool lettre = octets.starts_with(kMarque_Utf8);
  for (std::size_t place = 0; place < octets.size();) {
    const std::size_t debut = place;
    const char32_t point = detail::Point_Suivant(octets, place);
    // A broken sequence reads as U+FFFD of one byte; the real character has three.
    if (point == 0xFFFD && place == debut + 1) return false;
    if (point >= 0x80 && Octet_1252(point)) lettre = true;
  }
  return lettre;
}

/// Without the mark at which old systems end a text, be it alone, repeated, or on a line of its own.
void Ote_Fin_De_Texte(std::string& octets) {
  const std::size_t reste = octets.find_last_not_of("\x1A\r\n");
  const std::size_t marque = octets.find('\x1A', reste == std::string::npos ? 0 : reste);
  if (marque != std::string::npos) octets.resize(marque);
}

}  // namespace

std::string Texte_Recu(std::string octets) {
  Ote_Fin_De_Texte(octets);
  // Most files are mere ASCII, where both character sets agree.
  const unsigned char ensemble =
      std::accumulate(octets.begin(), octets.end(), static_cast<unsigned char>(0), [](unsigned char vus, char octet) {
        return static_cast<unsigned char>(vus | static_cast<unsigned char>(octet));
      });
  if (ensemble < 0x80 || !En_Utf8(octets)) return octets;
  std::string_view utf8 = octets;
  if (utf8.starts_with(kMarque_Utf8)) utf8.remove_prefix(kMarque_Utf8.size());
  return De_Utf8(utf8);
}

}  // namespace vorelio
