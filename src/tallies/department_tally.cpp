#include "tallies/department_tally.h"

#include "core/bands.h"
#include "core/error_window.h"
#include "core/main_window.h"
#include "core/station_files.h"
#include "core/text.h"
#include "views/department_map.h"

namespace vorelio::Sous_Programmes {

namespace {

constexpr int kPremiere_Bande = 4;
constexpr int kLargeur_Cle = 2;
constexpr int kColonne_Nom = 22;

std::string_view Cle(std::string_view ligne) { return Coupe(ligne, 1, kLargeur_Cle); }

void Compte_Couleur(Couleur couleur, Compte_Departements& compte) {
  if (couleur == kDpt_Contacte) ++compte.sans;
  if (couleur == kDpt_QSL_Envoyee) ++compte.envoyees;
  if (couleur == kDpt_QSL_Recue) ++compte.recues;
  if (couleur == kDpt_Confirme) ++compte.confirmees;
}

}  // namespace

std::string Forme_Pointage(const std::string& departement) {
  return departement == "2a" ? "96" : departement == "2b" ? "97" : departement;
}

std::string Forme_Affichee(const std::string& departement) {
  return departement == "96" ? "2a" : departement == "97" ? "2b" : departement;
}

int Cellule_Departement(std::string_view cle) {
  if (cle == "2a" || cle == "2A") return 96;
  if (cle == "2b" || cle == "2B") return 97;
  return Nombre_Entier(cle);
}

int Colonne_Departement(std::string_view bande) {
  const int indice = Indice_Bande(bande);
  return indice < 0 ? 0 : kPremiere_Bande + indice;
}

void Cherche_Departement(Programme& programme, std::string_view departement, std::string& code, std::string& nom,
                         std::string_view bande, std::string& ligne) {
  const std::string texte = programme.Disque().ReadAll(programme.Chemin_Station(kSuite_Departement));
  const int colonne = Colonne_Departement(bande);
  for (Lecteur_Lignes lignes(texte); !lignes.Fini();) {
    const std::string_view lue = lignes.Suivante();
    if (Cle(lue) != departement) continue;
    if (colonne > 0) code = Coupe(lue, colonne, 1);
    ligne = lue;
    nom = Rogne_Gauche(Coupe(lue, kColonne_Nom));
    return;
  }
}

void Maj_Departement(Programme& programme, std::string_view departement, std::string_view code,
                     std::string_view bande) {
  const std::string fichier = programme.Chemin_Station(kSuite_Departement);
  const std::string temporaire = programme.Chemin("Temporaire2.txt");
  const int colonne = Colonne_Departement(bande);
  Ecrit_Temporaire(programme.Disque(), fichier, temporaire, [&](std::string_view ligne) {
    const bool touchee = colonne > 0 && Cle(ligne) == departement;
    return touchee ? Avec_Code(ligne, colonne, code, kPremiere_Bande) : std::string(ligne);
  });
  Prend_Temporaire(programme.Disque(), fichier, temporaire);
}

void Peint_Cellules(Programme& programme, std::string_view bande, const Cellules& cellules, int& total) {
  const std::string texte = programme.Disque().ReadAll(programme.Chemin_Station(kSuite_Departement));
  total = 0;
  Efface_Cellules(cellules, kFond_Fenetre);

  const int colonne = Colonne_Departement(bande);
  for (Lecteur_Lignes lignes(texte); !lignes.Fini();) {
    const std::string_view ligne = lignes.Suivante();
    // An empty or truncated line has nothing to tell. A band without a column reads no line's code, and counts them
    // all.
    if (!A_Un_Code(ligne, colonne > 0 ? colonne : kLargeur_Cle)) continue;
    const std::string_view code = colonne > 0 ? Coupe(ligne, colonne, 1) : std::string_view{};
    if (code == "0") continue;
    const int cellule = Cellule_Departement(Cle(ligne));
    if (Couleur couleur{}; Couleur_Code(code, couleur)) cellules(cellule).SetColour(couleur);
    ++total;
  }
}

Compte_Departements Compte_Cellules(const Cellules& cellules) {
  Compte_Departements compte;
  for (const auto& cellule : cellules) Compte_Couleur(cellule->Colour(), compte);
  return compte;
}

Compte_Departements Affiche_Departements(Programme& programme, std::string_view bande, int& total) {
  const Cellules& grille = programme.Principale().Grille();
  Piege_Fichier_Station(programme, kSuite_Departement, [&] { Peint_Cellules(programme, bande, grille, total); });
  // What the cells show in the end counts, not the lines: two lines of one cell are one department here. Where the map
  // of the departments is open its cells count, though they may be of another band.
  const auto* carte = programme.Ouverte<Carte>();
  return Compte_Cellules(carte ? carte->Dep : grille);
}

}  // namespace vorelio::Sous_Programmes
