#include "maintenance/backup_settings_window.h"

#include "core/text.h"

namespace vorelio {

Delta_QSO::Delta_QSO(Programme& programme)
    : Form(programme, "Delta_QSO", "Parametres de sauvegarde"),
      Command1(*this, "Command1", "Enregistrer les parametres") {
  New_Rep.Click = [this] { New_Rep_Click(); };
  Command1.Click = [this] { Command1_Click(); };
}

void Delta_QSO::Form_Load() {
  auto& contexte = programme_.contexte;
  Centre();
  contexte.Delta_Sauvegarde = programme_.reglages.Station("Delta Sauvegarde", "10");
  Val_Delta.SetText(contexte.Delta_Sauvegarde);
  contexte.Chemin_Sauvegarde = programme_.reglages.Station("Chemin Sauvegarde", programme_.Chemin_Programme());
  Le_Chemin.SetCaption(contexte.Chemin_Sauvegarde);
}

void Delta_QSO::New_Rep_Click() {
  auto& contexte = programme_.contexte;
  const std::string chemin = programme_.Choisit_Nom(Forme_Fichier(contexte.Station_Indicatif), "");
  if (chemin.empty()) return programme_.Message("selectionnez un fichier ou quitter");
  contexte.Chemin_Sauvegarde = chemin;
  Le_Chemin.SetCaption(chemin);
}

void Delta_QSO::Command1_Click() {
  auto& contexte = programme_.contexte;
  programme_.reglages.Ecrit_Station("Delta Sauvegarde", Val_Delta.Text());
  contexte.Delta_Sauvegarde = Val_Delta.Text();
  programme_.reglages.Ecrit_Station("Chemin Sauvegarde", contexte.Chemin_Sauvegarde);
  Le_Chemin.SetCaption(contexte.Chemin_Sauvegarde);
  Unload();
}

}  // namespace vorelio
