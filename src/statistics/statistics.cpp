#include "statistics/statistics.h"

#include <algorithm>
#include <cmath>

#include "core/bands.h"
#include "core/errors.h"
#include "core/log_line.h"
#include "qsl/state_words.h"
#include "tallies/prefix_tally.h"

namespace vorelio {

// --- Distances ------------------------------------------------------------------------------------------------------

int Classe_Distance(double km, int precedente) {
  if (km >= 0 && km <= 100) return 1;
  if (km > 1000) return kClasses_Distance;
  if (km < 0 || km == 1000) return precedente;
  const int centaine = static_cast<int>(km / 100);
  return km <= 100 * centaine + 99 ? centaine + 1 : precedente;
}

Comptes_Distance Compte_Distances(std::string_view log) {
  Comptes_Distance comptes;
  std::string_view bande;
  bool vide = true;
  // Never set back between two lines: a distance without a class of its own is counted where the contact before it
  // went, and as the first one nowhere: operators lay this table beside those they have printed.
  int classe = 0;
  for (Lecteur_Lignes lignes(log); !lignes.Fini(); vide = false) {
    const std::string_view ligne = lignes.Suivante();
    bande = Lit_Log(ligne, champs::Bande_A);
    const auto place = std::find(kBandes_Distance.begin(), kBandes_Distance.end(), bande);
    if (place == kBandes_Distance.end()) continue;
    classe = Classe_Distance(Valeur(Champ_Log(ligne, champs::Distance_A)), classe);
    if (classe == 0) continue;
    auto& colonne = comptes.cellules[static_cast<std::size_t>(place - kBandes_Distance.begin())];
    ++colonne[static_cast<std::size_t>(classe - 1)];
  }
  if (!vide) comptes.derniere_bande = bande;
  return comptes;
}

// --- Contacts and their cards ---------------------------------------------------------------------------------------

Compte_Activite& Comptes_QSO::Activite(int numero) {
  if (numero < 0 || numero >= static_cast<int>(activites.size())) throw Erreur_Execution(Erreur::Indice_Hors_Limites);
  return activites[static_cast<std::size_t>(numero)];
}

Comptes_QSO Compte_QSO(std::string_view log) {
  Comptes_QSO comptes;
  for (Lecteur_Lignes lignes(log); !lignes.Fini(); ++comptes.total) {
    const std::string_view ligne = lignes.Suivante();
    const std::string_view etat = Lit_Log(ligne, champs::Etat_QSL);
    Compte_Activite& activite =
        comptes.Activite(static_cast<int>(std::nearbyint(Valeur(Lit_Log(ligne, champs::Activ_A)))));
    ++activite.qso;
    activite.envoyees += etat == "2" || etat == "4";
    activite.recues += etat == "3" || etat == "4";
    comptes.francais += Sous_Programmes::Indicatif_Francais(Champ_Log(ligne, champs::Indicatif_A));
  }
  return comptes;
}

std::string Pourcentage(int part, int total) {
  // In whole numbers: 29 of 50 are 58 hundredths, which a division into 0.58 would miss.
  const int centiemes = total == 0 ? 0 : part * 100 / total;
  const std::string texte = std::to_string(centiemes);
  return texte.size() == 1 ? " " + texte : texte;
}

std::string Ligne_Activite(std::string_view nom, const Compte_Activite& compte) {
  constexpr int kLargeur_Nom = 7;
  constexpr int kLargeur_Nombre = 5;
  const auto nombre = [](int valeur) { return Complete_Gauche(std::to_string(valeur), kLargeur_Nombre); };
  const auto cartes = [&](int valeur) { return nombre(valeur) + " (" + Pourcentage(valeur, compte.qso) + "%)"; };
  return Blancs(4) + Complete(nom, kLargeur_Nom) + Blancs(5) + nombre(compte.qso) + Blancs(5) +
         cartes(compte.envoyees) + Blancs(5) + cartes(compte.recues);
}

// --- Activations ----------------------------------------------------------------------------------------------------

bool Bande_Choisie(std::string_view bande, std::string_view choix) {
  if (choix == kBandes_HF_Ensemble) return Bande_HF(bande);
  if (choix == kBandes_VHF_Ensemble) return Bande_VHF(bande);
  return bande == choix;
}

std::vector<std::string> Lignes_Activation(std::string_view log, std::string_view indice, std::string_view choix) {
  std::vector<std::string> trouvees;
  Mot_QSL lettre = Lettre_QSL();
  for (Lecteur_Lignes lignes(log); !lignes.Fini();) {
    const std::string_view ligne = lignes.Suivante();
    const std::string& carte = lettre.De(Lit_Log(ligne, champs::Etat_QSL));
    if (Lit_Log(ligne, champs::Activ_A) != indice) continue;
    if (!Bande_Choisie(Lit_Log(ligne, champs::Bande_A), choix)) continue;
    std::string& texte = trouvees.emplace_back("  ");
    texte.append(Coupe(ligne, champs::QTH_A.colonne, 15)).append(Coupe(ligne, champs::Remarques_A.colonne, 30));
    texte.append(Coupe(ligne, champs::Date_A.colonne, 10)).append(Coupe(ligne, champs::Indicatif_A.colonne, 12));
    texte.append(Coupe(ligne, champs::Bande_A.colonne, 8)).append("  ").append(carte);
  }
  std::stable_sort(trouvees.begin(), trouvees.end());
  return trouvees;
}

}  // namespace vorelio
