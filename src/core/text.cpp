#include "core/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "core/errors.h"

namespace vorelio {

// --- Character set ---------------------------------------------------------------------------------------------------

std::string De_Utf8(std::string_view utf8) {
  std::string texte;
  texte.reserve(utf8.size());
  for (std::size_t place = 0; place < utf8.size();)
    texte += Octet_1252(detail::Point_Suivant(utf8, place)).value_or('?');
  return texte;
}

std::optional<std::string> De_Utf8_Exact(std::string_view utf8) {
  std::string texte;
  texte.reserve(utf8.size());
  for (std::size_t place = 0; place < utf8.size();) {
    const auto octet = Octet_1252(detail::Point_Suivant(utf8, place));
    if (!octet) return std::nullopt;
    texte += *octet;
  }
  return texte;
}

std::string Vers_Utf8(std::string_view texte) {
  std::string utf8;
  utf8.reserve(texte.size());
  for (const char octet : texte) {
    const char32_t point = Point_1252(octet);
    if (point < 0x80) {
      utf8 += static_cast<char>(point);
    } else if (point < 0x800) {
      utf8 += static_cast<char>(0xC0 | point >> 6);
      utf8 += static_cast<char>(0x80 | (point & 0x3F));
    } else {
      utf8 += static_cast<char>(0xE0 | point >> 12);
      utf8 += static_cast<char>(0x80 | (point >> 6 & 0x3F));
      utf8 += static_cast<char>(0x80 | (point & 0x3F));
    }
  }
  return utf8;
}

// --- Columns --------------------------------------------------------------------------------------------------------

std::string_view Coupe(std::string_view texte, int colonne, int largeur) {
  if (colonne < 1 || largeur < 0) throw Erreur_Execution(Erreur::Argument_Invalide);
  const auto debut = static_cast<std::size_t>(colonne - 1);
  return debut >= texte.size() ? std::string_view{} : texte.substr(debut, static_cast<std::size_t>(largeur));
}

std::string_view Coupe(std::string_view texte, int colonne) {
  return Coupe(texte, colonne, static_cast<int>(texte.size()));
}

std::string_view Fin(std::string_view texte, int largeur) {
  if (largeur < 0) throw Erreur_Execution(Erreur::Argument_Invalide);
  const auto nombre = std::min(static_cast<std::size_t>(largeur), texte.size());
  return texte.substr(texte.size() - nombre);
}

std::string_view Rogne_Gauche(std::string_view texte) {
  const auto debut = texte.find_first_not_of(' ');
  return debut == std::string_view::npos ? std::string_view{} : texte.substr(debut);
}

std::string_view Rogne(std::string_view texte) {
  texte = Rogne_Gauche(texte);
  return texte.substr(0, texte.find_last_not_of(' ') + 1);
}

std::string Blancs(int nombre) {
  if (nombre < 0) throw Erreur_Execution(Erreur::Argument_Invalide);
  return std::string(static_cast<std::size_t>(nombre), ' ');
}

std::string Complete(std::string_view texte, int largeur, int ecart) {
  std::string ligne;
  Ajoute_Complete(ligne, texte, largeur, ecart);
  return ligne;
}

void Ajoute_Complete(std::string& ligne, std::string_view texte, int largeur, int ecart) {
  const auto total = static_cast<std::size_t>(largeur) + static_cast<std::size_t>(ecart);
  if (texte.size() > total) throw Erreur_Execution(Erreur::Argument_Invalide);
  ligne.append(texte).append(total - texte.size(), ' ');
}

std::string Complete_Gauche(std::string_view texte, int largeur) {
  return Blancs(largeur - static_cast<int>(texte.size())).append(texte);
}

// --- Case -----------------------------------------------------------------------------------------------------------

std::string Majuscules(std::string_view texte) {
  static const auto table = [] {
    std::array<char, 256> capitale{};
    for (std::size_t i = 0; i < capitale.size(); ++i) {
      const bool lettre = (i >= 'a' && i <= 'z') || (i >= 0xE0 && i <= 0xFE && i != 0xF7);
      capitale[i] = static_cast<char>(lettre ? i - 0x20 : i);
    }
    for (const std::size_t i : {0x9A, 0x9C, 0x9E}) capitale[i] = static_cast<char>(i - 0x10);
    capitale[0xFF] = static_cast<char>(0x9F);
    return capitale;
  }();
  std::string haut(texte);
  for (char& octet : haut) octet = table[static_cast<unsigned char>(octet)];
  return haut;
}

std::string Forme_Fichier(std::string_view texte) {
  std::string nom(texte);
  for (char& octet : nom)
    if (octet == '/' || octet == '\\' || octet == ':' || static_cast<unsigned char>(octet) < ' ') octet = '_';
  if (nom.starts_with('.')) nom.front() = '_';
  return nom;
}

// --- Numbers --------------------------------------------------------------------------------------------------------

namespace {

/// The number that `texte` begins with, and how many characters it takes (0: none).
double Nombre_En_Tete(std::string_view texte, std::size_t& longueur) {
  const bool plus = texte.starts_with('+') && !texte.starts_with("+-");
  const std::string_view reste = texte.substr(plus ? 1 : 0);
  // from_chars would also take "inf" and "nan".
  const std::size_t chiffre = reste.find_first_not_of("-.");
  longueur = 0;
  if (chiffre == std::string_view::npos || reste[chiffre] < '0' || reste[chiffre] > '9') return 0;
  double nombre = 0;
  const auto [fin, faute] = std::from_chars(reste.data(), reste.data() + reste.size(), nombre);
  if (faute == std::errc::result_out_of_range) throw Erreur_Execution(Erreur::Depassement);
  if (faute != std::errc{}) return 0;
  longueur = static_cast<std::size_t>(fin - texte.data());
  return nombre;
}

}  // namespace

double Valeur(std::string_view texte) {
  std::size_t longueur = 0;
  return Nombre_En_Tete(Rogne_Gauche(texte), longueur);
}

double Nombre(std::string_view texte) {
  const std::string_view entier = Rogne(texte);
  std::size_t longueur = 0;
  const double nombre = Nombre_En_Tete(entier, longueur);
  if (longueur == 0 || longueur != entier.size()) throw Erreur_Execution(Erreur::Type_Incompatible);
  return nombre;
}

int Nombre_Entier(std::string_view texte) {
  const double nombre = std::nearbyint(Nombre(texte));
  if (nombre < INT32_MIN || nombre > INT32_MAX) throw Erreur_Execution(Erreur::Depassement);
  return static_cast<int>(nombre);
}

std::string Texte_Nombre(double nombre) {
  // Without a format 100000 would be the shorter "1e+05".
  constexpr double kChiffres_Exacts = 1e15;
  const auto format = std::abs(nombre) < kChiffres_Exacts ? std::chars_format::fixed : std::chars_format::general;
  std::array<char, 64> tampon{};
  const auto [fin, faute] = std::to_chars(tampon.data(), tampon.data() + tampon.size(), nombre, format);
  if (faute != std::errc{}) throw Erreur_Execution(Erreur::Depassement);
  return {tampon.data(), fin};
}

std::string Texte_Nombre_Blanc(double nombre) { return (nombre < 0 ? "" : " ") + Texte_Nombre(nombre); }

std::string Compte(std::size_t nombre, std::string_view un, std::string_view plusieurs) {
  return (std::to_string(nombre) + " ").append(nombre < 2 ? un : plusieurs);
}

std::string Deux_Chiffres(int nombre) { return (nombre < 10 ? "0" : "") + std::to_string(nombre); }

std::string Texte_Booleen(bool valeur) { return valeur ? "True" : "False"; }

bool Booleen(std::string_view texte) { return Majuscules(Rogne(texte)) == "TRUE"; }

// --- Lines ----------------------------------------------------------------------------------------------------------

std::string_view Lecteur_Lignes::Suivante() {
  if (reste_.empty()) throw Erreur_Execution(Erreur::Fin_De_Fichier);
  const auto fin = reste_.find('\n');
  std::string_view ligne = reste_.substr(0, fin);
  reste_.remove_prefix(fin == std::string_view::npos ? reste_.size() : fin + 1);
  if (fin != std::string_view::npos && ligne.ends_with('\r')) ligne.remove_suffix(1);
  return ligne;
}

int Compte_Lignes(std::string_view texte) {
  int nombre = 0;
  for (auto fin = texte.find('\n'); fin != std::string_view::npos; fin = texte.find('\n', fin + 1)) ++nombre;
  return nombre;
}

std::string_view Lecteur_Champs::Suivant() {
  if (reste_.empty()) throw Erreur_Execution(Erreur::Fin_De_Fichier);
  const auto fin = std::min(reste_.find_first_of(",\r\n"), reste_.size());
  const std::string_view champ = reste_.substr(0, fin);
  reste_.remove_prefix(fin);
  reste_.remove_prefix(reste_.starts_with("\r\n") ? 2 : reste_.empty() ? 0 : 1);
  return champ;
}

}  // namespace vorelio
