#include "cluster/cat_frames.h"

#include <algorithm>
#include <charconv>

#include "core/errors.h"
#include "core/text.h"

namespace vorelio {

namespace {

constexpr int kLargeur_Cadre = 9;
constexpr std::size_t kChiffres = 8;

/// A whole number on eight digits or more, zeros in front.
std::string Huit_Chiffres(int nombre) {
  const std::string chiffres = std::to_string(nombre);
  return std::string(kChiffres - std::min(kChiffres, chiffres.size()), '0') + chiffres;
}

/// Two digits as one byte; what is no digit, as a sign, is run-time error 13.
std::uint8_t Paire(std::string_view chiffres, std::size_t place) {
  int octet = 0;
  for (const char chiffre : chiffres.substr(place, 2)) {
    if (chiffre < '0' || chiffre > '9') throw Erreur_Execution(Erreur::Type_Incompatible);
    octet = octet * 16 + (chiffre - '0');
  }
  return static_cast<std::uint8_t>(octet);
}

Parametres_CAT Paires(std::string_view chiffres) {
  Parametres_CAT octets{};
  for (std::size_t i = 0; i < octets.size(); ++i) octets[i] = Paire(chiffres, 2 * i);
  return octets;
}

}  // namespace

const Modele_Transceiver* Cherche_Modele(std::string_view nom) {
  const auto modele =
      std::find_if(kModeles.begin(), kModeles.end(), [&](const Modele_Transceiver& m) { return m.nom == nom; });
  return modele == kModeles.end() ? nullptr : &*modele;
}

int Colonne_Qrg(Famille_CAT famille, Tri tri) {
  if (famille != Famille_CAT::Yaesu) return 22;
  switch (tri) {
    case Tri::QTR: return 28;
    case Tri::Indicatif: return 14;
    case Tri::QRG: break;
  }
  return 1;
}

std::string Texte_Qrg(std::string_view ligne, int colonne) {
  const std::string_view cadre = Coupe(ligne, colonne, kLargeur_Cadre);
  const std::string texte = std::string(Coupe(cadre, 1, 7)).append(Fin(cadre, 1)) + "0";
  return std::string(Rogne(texte));
}

Parametres_CAT Qrg_Bcd(int frequence) { return Paires(Huit_Chiffres(frequence)); }

Parametres_CAT Qrg_Bcd_Inverse(std::string& frequence) {
  std::reverse(frequence.begin(), frequence.end());
  if (frequence.size() < kChiffres) frequence.resize(kChiffres, '0');
  frequence = Huit_Chiffres(Nombre_Entier(frequence));
  return Paires(frequence);
}

std::array<std::string, 7> Qrg_Bcd_Icom(std::string_view frequence) {
  const std::string chiffres = "0" + Huit_Chiffres(Nombre_Entier(frequence)) + "0";
  std::array<std::string, 7> textes;
  for (std::size_t i = 0; i < 5; ++i) textes[i] = "&H" + std::to_string(Paire(chiffres, 2 * i));
  return textes;
}

int Chiffres_Du_Nombre(std::string_view texte) { return static_cast<int>(Texte_Nombre(Nombre(texte)).size()); }

std::array<std::string, 2> Trames_Icom(std::string_view adresse, std::string_view frequence) {
  int octet = 0;
  const std::string_view chiffres = adresse.substr(2);
  std::from_chars(chiffres.data(), chiffres.data() + chiffres.size(), octet, 16);
  const std::string tete = std::string("\xFE\xFE").append(1, static_cast<char>(octet)).append(1, '\0');

  std::string qrg = tete + '\x05';
  for (const std::string& texte : Qrg_Bcd_Icom(frequence)) qrg += texte;

  std::string mode = tete + '\0';
  const int longueur = Chiffres_Du_Nombre(frequence);
  if (longueur == 6) mode += '\0';  // LSB, below 10 MHz.
  if (longueur == 7 || longueur == 8) mode += '\x01';
  return {qrg + '\xFD', mode + '\xFD'};
}

}  // namespace vorelio
