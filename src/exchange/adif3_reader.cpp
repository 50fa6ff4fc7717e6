#include "exchange/adif3_reader.h"

#include <algorithm>
#include <array>
#include <optional>

#include "core/text.h"

namespace vorelio {

namespace {

constexpr bool Blanc(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
constexpr bool Chiffre(char c) { return c >= '0' && c <= '9'; }
constexpr char Capitale(char c) { return static_cast<char>(Touche_Majuscule(c)); }
/// The characters that names are made of.
constexpr std::array<bool, 256> kDe_Nom = [] {
  std::array<bool, 256> de_nom{};
  for (const char c : std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-"))
    de_nom[static_cast<unsigned char>(c)] = true;
  return de_nom;
}();
constexpr bool De_Nom(char c) { return kDe_Nom[static_cast<unsigned char>(c)]; }

bool Meme_Nom(std::string_view lu, std::string_view nom) {
  return lu.size() == nom.size() && Capitale(lu.front()) == nom.front() &&
         std::equal(lu.begin(), lu.end(), nom.begin(), [](char a, char b) { return Capitale(a) == b; });
}

std::string_view Sans_Blancs(std::string_view texte) {
  while (!texte.empty() && Blanc(texte.front())) texte.remove_prefix(1);
  while (!texte.empty() && Blanc(texte.back())) texte.remove_suffix(1);
  return texte;
}

/// A tag: "<NAME:12:S>", or "<EOR>" without a length.
struct Balise {
  std::string_view nom;
  std::optional<std::size_t> longueur;
  std::size_t fin;  ///< Behind its ">".
};

/// What can't be the length of any value stays at this.
constexpr std::size_t kSans_Fin = std::size_t{1} << 40;

/// The tag that begins at `place`; nothing if what stands there isn't one, as a "<" in a text.
std::optional<Balise> Balise_A(std::string_view octets, std::size_t place) {
  constexpr std::size_t kNom_Max = 100, kType_Max = 8;
  const std::size_t debut = place + 1;
  std::size_t fin = debut;
  while (fin < octets.size() && fin - debut < kNom_Max && De_Nom(octets[fin])) ++fin;
  Balise balise{octets.substr(debut, fin - debut), std::nullopt, 0};
  if (balise.nom.empty() || fin >= octets.size()) return std::nullopt;
  if (octets[fin] == ':') {
    ++fin;
    std::size_t longueur = 0;
    const std::size_t chiffres = fin;
    for (; fin < octets.size() && Chiffre(octets[fin]); ++fin)
      longueur = std::min(kSans_Fin, longueur * 10 + static_cast<std::size_t>(octets[fin] - '0'));
    if (fin > chiffres) balise.longueur = longueur;
    const std::size_t type = fin;
    while (fin < octets.size() && fin - type < kType_Max && octets[fin] != '>' && octets[fin] != '<') ++fin;
  }
  if (fin >= octets.size() || octets[fin] != '>') return std::nullopt;
  balise.fin = fin + 1;
  return balise;
}

/// The next tag from `place` on, and where it begins.
std::optional<Balise> Balise_Suivante(std::string_view octets, std::size_t& place) {
  for (; (place = octets.find('<', place)) != std::string_view::npos; ++place)
    if (auto balise = Balise_A(octets, place)) return balise;
  place = octets.size();
  return std::nullopt;
}

/// The end of so many UTF-8 characters; nothing where the text is shorter, or the count too long to be counted out for
/// each field of a broken file.
std::optional<std::size_t> Fin_Caracteres(std::string_view octets, std::size_t place, std::size_t nombre) {
  constexpr std::size_t kCompte_Max = 4096;
  if (nombre > kCompte_Max) return std::nullopt;
  for (; nombre > 0; --nombre) {
    if (place >= octets.size()) return std::nullopt;
    detail::Point_Suivant(octets, place);
  }
  return place;
}

}  // namespace

void Enregistrement_ADIF::Vide() {
  champs_.clear();
  propre_ = false;
}

void Enregistrement_ADIF::Ajoute(const Champ_ADIF3& champ) {
  champs_.push_back(champ);
  propre_ |= champ.nom.size() > kPrefixe_Propre.size() &&
             Meme_Nom(champ.nom.substr(0, kPrefixe_Propre.size()), kPrefixe_Propre);
}

const Champ_ADIF3* Enregistrement_ADIF::Cherche(std::string_view nom) const {
  const auto place = std::find_if(champs_.rbegin(), champs_.rend(),
                                  [nom](const Champ_ADIF3& champ) { return Meme_Nom(champ.nom, nom); });
  return place == champs_.rend() ? nullptr : &*place;
}

std::string_view Enregistrement_ADIF::Valeur_De(std::string_view nom) const {
  const Champ_ADIF3* champ = Cherche(nom);
  return champ ? Sans_Blancs(champ->valeur) : std::string_view{};
}

bool Lecteur_ADIF3::Suivant() {
  champs_.Vide();
  debut_ = place_;
  while (true) {
    std::size_t place = place_;
    const auto balise = Balise_Suivante(octets_, place);
    if (champs_.Est_Vide()) debut_ = place;
    if (!balise) {
      place_ = octets_.size();
      return !champs_.Est_Vide();
    }
    place_ = balise->fin;
    if (Meme_Nom(balise->nom, "EOH")) {
      fin_vue_ = true;
      entete_ = octets_.substr(0, place_);
      std::swap(champs_entete_, champs_);
      champs_.Vide();
    } else if (Meme_Nom(balise->nom, "EOR")) {
      fin_vue_ = true;
      if (!champs_.Est_Vide()) return true;
    } else if (balise->longueur) {
      place_ = Fin_Valeur(balise->fin, *balise->longueur);
      champs_.Ajoute({balise->nom, octets_.substr(balise->fin, place_ - balise->fin)});
    }
  }
}

bool Lecteur_ADIF3::Bornee(std::size_t fin) const {
  constexpr std::size_t kBlancs_Max = 256;
  const std::size_t limite = std::min(octets_.size(), fin + kBlancs_Max);
  while (fin < limite && Blanc(octets_[fin])) ++fin;
  return fin == octets_.size() || (fin < octets_.size() && octets_[fin] == '<');
}

std::size_t Lecteur_ADIF3::Fin_Valeur(std::size_t debut, std::size_t longueur) const {
  if (longueur > octets_.size() - debut) {
    Balise_Suivante(octets_, debut);
    return debut;
  }
  const std::size_t fin = debut + longueur;
  if (Bornee(fin)) return fin;
  const auto caracteres = utf8_ ? Fin_Caracteres(octets_, debut, longueur) : std::nullopt;
  if (caracteres && Bornee(*caracteres)) return *caracteres;
  // Neither is right. The next tag is the next field's; but remarks of the program itself may stand before it, behind a
  // value that ends with a whole character.
  std::size_t suivante = debut;
  Balise_Suivante(octets_, suivante);
  const bool entier = !utf8_ || (octets_[fin] & 0xC0) != 0x80;
  return entier ? std::min(fin, suivante) : suivante;
}

}  // namespace vorelio
