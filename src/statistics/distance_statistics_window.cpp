#include "statistics/distance_statistics_window.h"

#include <numeric>
#include <string>

#include "stations/log_file.h"
#include "statistics/statistics.h"

namespace vorelio {

Statistiques::Statistiques(Programme& programme)
    : Form(programme, "Statistiques", "Statistiques distances"),
      Text11(*this, "Text11", 1, static_cast<int>(kBandes_Distance.size()) * kClasses_Distance) {
  for (const auto& cellule : Text11) cellule->SetReadOnly(true);
  for (TextField* total : Totaux()) total->SetReadOnly(true);
}

void Statistiques::Form_Load() {
  Centre();
  const std::string log = Sous_Programmes::Texte_Log(programme_);
  const Comptes_Distance comptes = Compte_Distances(log);
  // The band of the last line becomes that of the entry form: the next contact's tallies are asked with it.
  if (comptes.derniere_bande) programme_.contexte.Bande_Courante = *comptes.derniere_bande;

  int cellule = Text11.First();
  const auto totaux = Totaux();
  for (std::size_t bande = 0; bande < totaux.size(); ++bande) {
    const auto& classes = comptes.cellules[bande];
    for (const int compte : classes) Text11(cellule++).SetText(compte == 0 ? "" : std::to_string(compte));
    totaux[bande]->SetText(std::to_string(std::accumulate(classes.begin(), classes.end(), 0)));
  }
}

}  // namespace vorelio
