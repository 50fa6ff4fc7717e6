#include "tallies/locator_tally.h"

#include "core/bands.h"
#include "core/error_window.h"
#include "core/main_window.h"
#include "core/station_files.h"
#include "core/text.h"
#include "tallies/tally_file.h"
#include "views/locator_maps.h"

namespace vorelio::Sous_Programmes {

namespace {

constexpr int kPremiere_Bande = 6;
constexpr int kLargeur_Champ = 2;
constexpr int kLargeur_Cle = 4;

std::string_view Cle(std::string_view ligne) { return Coupe(ligne, 1, kLargeur_Cle); }

}  // namespace

int Colonne_Locator(std::string_view bande) {
  return Bande_VHF(bande) ? kPremiere_Bande + Indice_Bande(bande) - kBandes_HF : 0;
}

void Cherche_Locator(Programme& programme, std::string_view locator, std::string& code, std::string_view bande,
                     std::string& ligne) {
  Piege_Fichier_Station(programme, kSuite_Locator, [&] {
    const std::string texte = programme.Disque().ReadAll(programme.Chemin_Station(kSuite_Locator));
    const int colonne = Colonne_Locator(bande);
    for (Lecteur_Lignes lignes(texte); !lignes.Fini();) {
      const std::string_view lue = lignes.Suivante();
      if (Cle(lue) != Cle(locator)) continue;
      code = colonne > 0 ? Coupe(lue, colonne, 1) : std::string_view{};
      ligne = lue;
      return;
    }
  });
}

void Maj_Locator(Programme& programme, std::string_view carre, std::string_view code, std::string_view bande) {
  const std::string fichier = programme.Chemin_Station(kSuite_Locator);
  const std::string temporaire = programme.Chemin("Temporaire3.txt");
  const int colonne = Colonne_Locator(bande);
  Ecrit_Temporaire(programme.Disque(), fichier, temporaire, [&](std::string_view ligne) {
    const bool touchee = colonne > 0 && Cle(ligne) == carre;
    return touchee ? Avec_Code(ligne, colonne, code, kPremiere_Bande) : std::string(ligne);
  });
  Prend_Temporaire(programme.Disque(), fichier, temporaire);
}

void Affiche_Locators(Programme& programme, std::string_view bande, std::string_view champ, int& total) {
  const std::string texte = programme.Disque().ReadAll(programme.Chemin_Station(kSuite_Locator));
  const Cellules& grille = programme.Principale().Grille();
  Carte_Champ* carte = Carte_Du_Champ(programme, champ);
  total = 0;
  // The pale colour tells the squares from the departments.
  Efface_Cellules(grille, kFait);
  if (carte) Efface_Cellules(carte->Dep, kFond_Fenetre);

  const int colonne = Colonne_Locator(bande);
  for (Lecteur_Lignes lignes(texte); !lignes.Fini();) {
    const std::string_view ligne = lignes.Suivante();
    // An empty or truncated line has nothing to tell. A band without a column reads no line's code, and counts all the
    // lines of the field.
    if (!A_Un_Code(ligne, colonne > 0 ? colonne : kLargeur_Cle)) continue;
    const std::string_view code = colonne > 0 ? Coupe(ligne, colonne, 1) : std::string_view{};
    if (code == "0" || Coupe(ligne, 1, kLargeur_Champ) != champ) continue;
    if (Couleur couleur{}; Couleur_Code(code, couleur)) {
      const int cellule = Nombre_Entier(Coupe(ligne, kLargeur_Champ + 1, kLargeur_Cle - kLargeur_Champ));
      grille(cellule).SetColour(couleur);
      if (carte) carte->Dep(cellule).SetColour(couleur);
    }
    ++total;
  }
  if (carte) carte->Bande_Carre.SetCaption(bande);
}

}  // namespace vorelio::Sous_Programmes
