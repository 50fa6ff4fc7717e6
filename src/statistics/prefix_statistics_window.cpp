#include "statistics/prefix_statistics_window.h"

#include "core/bands.h"
#include "core/text.h"
#include "stations/station_files.h"
#include "tallies/prefix_tally.h"
#include "tallies/tally_file.h"

namespace vorelio {

using namespace Sous_Programmes;

namespace {

constexpr int kLargeur_Prefixe = 5;
constexpr int kLargeur_Pays = 35;
constexpr int kBande_Au_Depart = 2;  // "7.0 Mhz"

}  // namespace

Statistique_Prefixe::Statistique_Prefixe(Programme& programme)
    : Form(programme, "Statistique_Prefixe", "Prefixes contactés"_t) {
  Bande_E.Click = [this] { Bande_E_Click(); };
}

void Statistique_Prefixe::Form_Load() {
  Centre();
  for (const auto bande : kBandes) Bande_E.AddItem(bande);
  Bande_E.SetListIndex(kBande_Au_Depart);
}

void Statistique_Prefixe::Bande_E_Click() {
  Liste_Prefixes.ClearItems();
  const std::string texte = programme_.Disque().ReadAll(programme_.Chemin_Station(kSuite_Prefixe));
  const int colonne = Colonne_Prefixe(Bande_E.Text());
  for (Lecteur_Lignes lignes(texte); !lignes.Fini();) {
    const std::string_view ligne = lignes.Suivante();
    const std::string prefixe = Complete(Prefixe_De(ligne), kLargeur_Prefixe);
    // Made for every line, so that a country too long for the list shows at once, whatever its code.
    const std::string pays = Complete(Rogne(Pays_De(ligne)), kLargeur_Pays);
    if (!A_Un_Code(ligne, colonne) || Nombre(Coupe(ligne, colonne, 1)) == 0) continue;
    Liste_Prefixes.AddItem("  " + prefixe + " " + pays);
  }
}

}  // namespace vorelio
