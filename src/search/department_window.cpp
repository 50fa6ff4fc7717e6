#include "search/department_window.h"

#include "core/log_line.h"
#include "core/text.h"
#include "forms/main_window.h"
#include "search/found_line.h"
#include "tallies/department_tally.h"

namespace vorelio {

Affiche_Dpt::Affiche_Dpt(Programme& programme) : Form(programme, "Affiche_Dpt", "QSO's effectués par départements"_t) {
  QSO_DU_Dep.DblClick = [this] {
    Selectionne_Dans_Log(programme_, QSO_DU_Dep.Text());
    Unload();
  };
}

void Affiche_Dpt::Form_Load() {
  Centre();
  Label1.SetCaption(
      "       N°    Date      Indicatif       Debut     Fin    Dpt   Locator   Bande   Mode        RstE         RstR"
      "              QTH                          Prénom"_t);
}

void Affiche_Dpt::Montre_Departement(int cellule) {
  std::string departement = Deux_Chiffres(cellule);
  const auto& log = programme_.Principale().Journal().Items();
  // The grid numbers Corsica, the log writes its letters. An empty log leaves the number.
  if (!log.empty()) departement = Sous_Programmes::Forme_Affichee(departement);
  for (const std::string_view element : log)
    if (Champ_Liste(element, champs::Depart_Court) == departement) QSO_DU_Dep.AddItem(element);
  Label2.SetCaption(departement);
}

}  // namespace vorelio
