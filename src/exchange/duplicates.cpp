#include "exchange/duplicates.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "core/log_line.h"

namespace vorelio {

namespace {

/// What must be the same in doubles.
constexpr std::array<Champ, 4> kMemes = {champs::Indicatif_A, champs::Bande_A, champs::Date_A, champs::Mode_A};

constexpr int kEcart = 10, kMinutes_Jour = 24 * 60;

constexpr char Capitale(char c) { return static_cast<char>(Touche_Majuscule(static_cast<unsigned char>(c))); }

bool Meme(std::string_view a, std::string_view b) {
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return Capitale(x) == Capitale(y); });
}

bool Memes_Champs(std::string_view a, std::string_view b) {
  return std::all_of(kMemes.begin(), kMemes.end(),
                     [&](const Champ& champ) { return Meme(Lit_Log(a, champ), Lit_Log(b, champ)); });
}

/// The start in minutes of the day, -1 if it is no time.
int Minute(std::string_view ligne) {
  const std::string_view debut = Lit_Log(ligne, champs::Debut_A);
  if (debut.size() != 5 || debut[2] != ':') return -1;
  int chiffres[4] = {};
  for (int i = 0; const std::size_t place : {0U, 1U, 3U, 4U}) {
    if (debut[place] < '0' || debut[place] > '9') return -1;
    chiffres[i++] = debut[place] - '0';
  }
  const int heure = chiffres[0] * 10 + chiffres[1], minute = chiffres[2] * 10 + chiffres[3];
  return heure > 23 || minute > 59 ? -1 : heure * 60 + minute;
}

bool Meme_Texte_De_Debut(std::string_view a, std::string_view b) {
  return Meme(Lit_Log(a, champs::Debut_A), Lit_Log(b, champs::Debut_A));
}

std::size_t Empreinte_Champs(std::string_view ligne) {
  std::uint64_t empreinte = 0xCBF29CE484222325U;
  for (const Champ& champ : kMemes)
    for (const char c : Lit_Log(ligne, champ))
      empreinte = (empreinte ^ static_cast<unsigned char>(Capitale(c))) * 0x100000001B3U;
  return static_cast<std::size_t>(empreinte);
}

}  // namespace

bool Est_Double(std::string_view ligne_a, std::string_view ligne_b) {
  if (!Memes_Champs(ligne_a, ligne_b)) return false;
  const int a = Minute(ligne_a), b = Minute(ligne_b);
  if (a < 0 || b < 0) return Meme_Texte_De_Debut(ligne_a, ligne_b);
  return std::max(a, b) - std::min(a, b) < kEcart;
}

bool Index_Doubles::Cle::operator==(const Cle& autre) const {
  return minute == autre.minute && empreinte == autre.empreinte && Memes_Champs(ligne, autre.ligne) &&
         (minute >= 0 || Meme_Texte_De_Debut(ligne, autre.ligne));
}

void Index_Doubles::Ajoute(std::string_view ligne) {
  lignes_.try_emplace({ligne, Empreinte_Champs(ligne), Minute(ligne)}, nombre_++);
}

std::optional<std::size_t> Index_Doubles::Cherche(std::string_view ligne) const {
  const std::size_t empreinte = Empreinte_Champs(ligne);
  const auto a_la_minute = [&](int minute) -> std::optional<std::size_t> {
    const auto place = lignes_.find({ligne, empreinte, minute});
    return place == lignes_.end() ? std::nullopt : std::optional(place->second);
  };
  const int minute = Minute(ligne);
  if (minute < 0) return a_la_minute(minute);
  for (int ecart = 0; ecart < kEcart; ++ecart)
    for (const int voisine : {minute - ecart, minute + ecart})
      if (voisine >= 0 && voisine < kMinutes_Jour)
        if (const auto numero = a_la_minute(voisine)) return numero;
  return std::nullopt;
}

}  // namespace vorelio
