#include "exchange/foreign_line.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>

#include "core/errors.h"
#include "core/text.h"
#include "geo/locator.h"
#include "tallies/prefix_tally.h"

namespace vorelio {

namespace {

constexpr std::size_t kLocator_Court = 4, kLocator_Long = 6;

bool Chiffres(std::string_view texte) {
  return !texte.empty() && std::all_of(texte.begin(), texte.end(), [](char c) { return c >= '0' && c <= '9'; });
}

int Deux(std::string_view texte, std::size_t place) { return (texte[place] - '0') * 10 + texte[place + 1] - '0'; }

}  // namespace

void Ligne_En_Cours::Pose(std::string Champs_QSO::*champ, const Champ& place, std::string valeur) {
  const auto largeur = static_cast<std::size_t>(place.largeur);
  if (valeur.size() > largeur) {
    valeur.resize(largeur);
    coupe = true;
  }
  qso.*champ = std::move(valeur);
}

void Ligne_En_Cours::Pose_Locator(std::string_view locator, std::string_view ici, bool HF) {
  const std::string la_bas = Locator_Six(locator);
  const bool entier = locator.size() == kLocator_Court || locator.size() == kLocator_Long;
  coupe |= !locator.empty() && (la_bas.empty() || !entier);
  if (!HF) qso.Locator_A = la_bas;
  if (la_bas.empty() || ici.size() != kLocator_Long) return;
  if (la_bas == ici) {
    qso.Distance_A = "0";
    qso.Azimut_A = "?";
    return;
  }
  try {
    qso.Distance_A = std::to_string(Sous_Programmes::Kilometres(ici, la_bas));
    qso.Azimut_A = std::to_string(Sous_Programmes::Degres(ici, la_bas));
  } catch (const Erreur_Execution&) {
    // At the other end of the world every direction is right.
    qso.Azimut_A = "?";
  }
}

void Ligne_En_Cours::Pose_Indicatif(std::string valeur) {
  if (valeur.empty()) throw Refus{"Indicatif absent"};
  if (valeur.size() > static_cast<std::size_t>(champs::Indicatif_A.largeur))
    throw Refus{"Indicatif de plus de 12 caractères"_t};
  qso.Indicatif_A = std::move(valeur);
}

std::string Date_Du_Log(std::string_view date) {
  if (date.empty()) throw Refus{"Date absente"};
  const auto impossible = [&] { return Refus{"Date impossible : " + std::string(date)}; };
  if (date.size() != 8 || !Chiffres(date)) throw impossible();
  const int annee = Deux(date, 0) * 100 + Deux(date, 2), mois = Deux(date, 4), jour = Deux(date, 6);
  const std::chrono::year_month_day reelle(std::chrono::year(annee), std::chrono::month(static_cast<unsigned>(mois)),
                                           std::chrono::day(static_cast<unsigned>(jour)));
  if (!reelle.ok()) throw impossible();
  if (annee < 1950 || annee > 2049) throw Refus{"Année hors de 1950 à 2049 : "_t + std::to_string(annee)};
  return Deux_Chiffres(jour) + "/" + Deux_Chiffres(mois) + "/" + Deux_Chiffres(annee % 100);
}

std::string Heure_Du_Log(std::string_view heure, std::string_view quoi) {
  if (heure.empty()) throw Refus{std::string(quoi) + " absente"};
  const bool bonne = (heure.size() == 4 || heure.size() == 6) && Chiffres(heure) && Deux(heure, 0) < 24 &&
                     Deux(heure, 2) < 60 && (heure.size() == 4 || Deux(heure, 4) < 60);
  if (!bonne) throw Refus{std::string(quoi) + " impossible : " + std::string(heure)};
  return std::string(heure.substr(0, 2)).append(":").append(heure.substr(2, 2));
}

std::string Locator_Six(std::string_view locator) {
  std::string six = Majuscules(locator.substr(0, kLocator_Long));
  if (six.size() == kLocator_Long - 1) six.pop_back();
  if (six.size() == kLocator_Court) six += "LL";
  if (six.size() != kLocator_Long) return {};
  static constexpr char kBornes[kLocator_Long][2] = {{'A', 'R'}, {'A', 'R'}, {'0', '9'},
                                                     {'0', '9'}, {'A', 'X'}, {'A', 'X'}};
  for (std::size_t i = 0; i < kLocator_Long; ++i)
    if (six[i] < kBornes[i][0] || six[i] > kBornes[i][1]) return {};
  return six;
}

std::optional<double> Nombre_Lu(std::string texte) {
  std::replace(texte.begin(), texte.end(), ',', '.');
  double nombre = 0;
  const auto [fin, erreur] = std::from_chars(texte.data(), texte.data() + texte.size(), nombre);
  if (erreur != std::errc{} || fin == texte.data() || !std::isfinite(nombre)) return std::nullopt;
  return nombre;
}

std::string Rapport_Et_Numero(std::string rapport, std::string numero) {
  if (numero.empty()) return rapport;
  if (Chiffres(numero) && numero.size() < 3) numero.insert(0, 3 - numero.size(), '0');
  // Behind "-10", or before a word, a blank tells where the number begins.
  const bool serre = rapport.empty() || (rapport.size() <= 3 && Chiffres(rapport) && Chiffres(numero));
  return rapport + (serre ? "" : " ") + numero;
}

std::string Departement_Francais(std::string_view texte, std::string_view indicatif, const Contexte_Journal& contexte) {
  std::string nom = Majuscules(texte);
  for (const std::string_view pays : {"FR-", "F-"})
    if (nom.starts_with(pays)) nom.erase(0, pays.size());
  const bool continue_ = nom.size() > 2 && (Chiffres(Coupe(nom, 3, 1)) || (nom[2] >= 'A' && nom[2] <= 'Z'));
  if (nom.size() < 2 || continue_) return {};
  nom.resize(2);
  const bool corse = nom == "2A" || nom == "2B";
  const bool continent = Chiffres(nom) && nom >= "01" && nom <= "95" && nom != "20";
  if (!corse && !continent) return {};
  const bool francais =
      contexte.francais ? contexte.francais(indicatif) : Sous_Programmes::Indicatif_Francais(indicatif);
  if (!francais) return {};
  return corse ? (nom == "2A" ? "2a" : "2b") : nom;
}

}  // namespace vorelio
