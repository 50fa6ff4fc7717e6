#include "printing/print_activity_window.h"

#include <string>

#include "core/bands.h"
#include "core/text.h"
#include "printing/log_listing.h"
#include "stations/activities.h"

namespace vorelio {

using namespace Sous_Programmes;

Print_Activite::Print_Activite(Programme& programme)
    : Form(programme, "Print_Activite", "Impression d'une activité"_t) {
  Impression.Click = [this] { Impression_Click(); };
}

void Print_Activite::Form_Load() {
  Centre();
  for (const auto bande : kBandes) Bande_Z.AddItem(bande);
  for (const std::string& nom : Noms_Activites(programme_, "Err6")) Imp_Activite.AddItem(nom);
}

void Print_Activite::Impression_Click() {
  // The band of the listing becomes the one of the entry form, where the next contact's tallies are asked with it.
  programme_.contexte.Bande_Courante = Bande_Z.Text();
  Imprime_Activite(programme_, Imp_Activite.ListIndex() + 1, Imp_Activite.Text(), Bande_Z.Text());
  Unload();
}

}  // namespace vorelio
