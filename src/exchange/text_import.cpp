#include "exchange/text_import.h"

#include <numeric>
#include <string_view>

#include "core/text.h"

namespace vorelio {

namespace {

constexpr std::string_view kMarque_Utf8 = "\xEF\xBB\xBF";

bool Utf8_Valide(std::string_view octets) {
  for (std::size_t place = 0; place < octets.size();) {
    const std::size_t debut = place;
    // A broken sequence reads as U+FFFD of one byte; the real character has three.
    if (detail::Point_Suivant(octets, place) == 0xFFFD && place == debut + 1) return false;
  }
  return true;
}

}  // namespace

std::string Texte_Recu(std::string octets) {
  // Most files are mere ASCII, where both character sets agree.
  const unsigned char ensemble =
      std::accumulate(octets.begin(), octets.end(), static_cast<unsigned char>(0), [](unsigned char vus, char octet) {
        return static_cast<unsigned char>(vus | static_cast<unsigned char>(octet));
      });
  if (ensemble < 0x80 || !Utf8_Valide(octets)) return octets;
  std::string_view utf8 = octets;
  if (utf8.starts_with(kMarque_Utf8)) utf8.remove_prefix(kMarque_Utf8.size());
  return De_Utf8(utf8);
}

}  // namespace vorelio
