#include "exchange/received_text.h"

#include <cstdint>
#include <cstring>

#include "core/text.h"

namespace vorelio {

namespace {

/// Most of a log is ASCII, which eight bytes at a time are passed over.
std::size_t Fin_ASCII(std::string_view octets, std::size_t place) {
  constexpr std::uint64_t kHauts = 0x8080808080808080U;
  for (std::uint64_t huit = 0; place + sizeof huit <= octets.size(); place += sizeof huit) {
    std::memcpy(&huit, octets.data() + place, sizeof huit);
    if ((huit & kHauts) != 0) break;
  }
  return place;
}

}  // namespace

bool Utf8_Valide(std::string_view octets) {
  for (std::size_t place = Fin_ASCII(octets, 0); place < octets.size(); place = Fin_ASCII(octets, place)) {
    const std::size_t debut = place;
    // A broken sequence reads as U+FFFD of one byte; the real character has three.
    if (detail::Point_Suivant(octets, place) == 0xFFFD && place == debut + 1) return false;
  }
  return true;
}

std::string Texte_Etranger::Exact(std::string_view octets, bool& perte) const {
  if (!utf8_ || Fin_ASCII(octets, 0) == octets.size()) return std::string(octets);
  std::string texte;
  for (std::size_t place = 0; place < octets.size();) {
    const auto octet = Octet_1252(detail::Point_Suivant(octets, place));
    perte |= !octet;
    texte += octet.value_or('?');
  }
  return texte;
}

std::string Texte_Etranger::Ligne(std::string_view octets, bool& perte) const {
  std::string texte = Exact(octets, perte);
  for (char& c : texte)
    if (static_cast<unsigned char>(c) < ' ' || c == '\x7F') c = ' ';
  texte.erase(texte.find_last_not_of(' ') + 1);
  texte.erase(0, texte.find_first_not_of(' '));
  return texte;
}

}  // namespace vorelio
