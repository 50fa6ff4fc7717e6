#include "printing/select_qso_window.h"

#include "printing/labels_window.h"
#include "stations/loading_window.h"
#include "stations/log_file.h"

namespace vorelio {

namespace {

/// Moves the line just clicked from one list to the other.
void Deplace(ListBox& de, ListBox& vers) {
  vers.AddItem(de.Text());
  de.RemoveItem(de.ListIndex());
}

}  // namespace

Select_QSO::Select_QSO(Programme& programme) : Form(programme, "Select_QSO", "Selection des QSO a imprimer") {
  Liste_QSO.Click = [this] { Deplace(Liste_QSO, Liste_Imprime); };
  Liste_Imprime.Click = [this] { Deplace(Liste_Imprime, Liste_QSO); };
  Impression.Click = [this] { programme_.Fenetre<Etiquettes>().Show(); };
}

void Select_QSO::Form_Load() {
  Centre();
  auto& chargement = programme_.Fenetre<Chargement>();
  chargement.Show();
  Sous_Programmes::Liste_Log(programme_, programme_.contexte.Station_Indicatif, Liste_QSO);
  chargement.Hide();
}

}  // namespace vorelio
