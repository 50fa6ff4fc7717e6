#include "statistics/qso_statistics_window.h"

#include <string>

#include "core/text.h"
#include "stations/activities.h"
#include "stations/log_file.h"
#include "statistics/statistics.h"

namespace vorelio {

Statistique_QSO::Statistique_QSO(Programme& programme) : Form(programme, "Statistique_QSO", "Statistiques des QSO") {}

void Statistique_QSO::Form_Load() {
  Centre();
  Label19.SetCaption("  Activités         Nb QSO         QSL Ev              QSL Re"_t);
  const auto noms = Sous_Programmes::Noms_Activites(programme_, "Err4");
  Comptes_QSO comptes = Compte_QSO(Sous_Programmes::Texte_Log(programme_));
  NbQSO.SetCaption(Texte_Nombre_Blanc(comptes.total));
  NbFR.SetCaption(Texte_Nombre_Blanc(comptes.francais));
  NbET.SetCaption(Texte_Nombre_Blanc(comptes.total - comptes.francais));
  int numero = 0;
  for (const std::string& nom : noms) StatActivite.AddItem(Ligne_Activite(nom, comptes.Activite(++numero)));
}

}  // namespace vorelio
