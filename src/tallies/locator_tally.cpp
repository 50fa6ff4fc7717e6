#include "tallies/locator_tally.h"

#include "core/bands.h"
#include "core/text.h"
#include "stations/error_window.h"
#include "stations/station_files.h"
#include "tallies/tally_file.h"

namespace vorelio::Sous_Programmes {

namespace {

constexpr int kPremiere_Bande = 6;
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
    return touchee ? std::optional(Avec_Code(ligne, colonne, code, kPremiere_Bande)) : std::nullopt;
  });
  Prend_Temporaire(programme.Disque(), fichier, temporaire);
}

}  // namespace vorelio::Sous_Programmes
