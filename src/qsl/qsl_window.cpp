#include "qsl/qsl_window.h"

#include "core/log_line.h"
#include "core/text.h"
#include "forms/main_window.h"
#include "qsl/multi_qsl_window.h"
#include "qsl/qsl_state.h"
#include "stations/log_file.h"

namespace vorelio {

using namespace Sous_Programmes;

QSL::QSL(Programme& programme)
    : Form(programme, "QSL", "Gestion QSL"),
      Check_Envoye(*this, "Check_Envoye", "QSL envoyée"_t),
      Check_Recu(*this, "Check_Recu", "QSL reçue"_t) {
  Enregistre.Click = [this] { Enregistre_Click(); };
  Multiple.Click = [this] { Multiple_Click(); };
}

void QSL::Remet_Cases() {
  Check_Envoye.SetChecked(false);
  Check_Recu.SetChecked(false);
}

void QSL::Form_Load() {
  Centre();
  Remet_Cases();
  const int etat = programme_.saisie.Etat_QSL_Courant;
  if (etat < 1 || etat > 4) return;
  const bool envoyee = etat == 2 || etat == 4;
  const bool recue = etat == 3 || etat == 4;
  Check_Envoye.SetEnabled(!envoyee);
  Check_Recu.SetEnabled(!recue);
  Enregistre.SetEnabled(!(envoyee && recue));
  Check_Envoye.SetChecked(envoyee && recue);
  Check_Recu.SetChecked(envoyee && recue);
}

void QSL::Form_Unload() {
  Remet_Cases();
  EnableAll({&Check_Envoye, &Check_Recu, &Enregistre}, true);
}

void QSL::Montre_QSO(const std::string& ligne) {
  const int etat = programme_.saisie.Etat_QSL_Courant;
  Label4.SetCaption(Lit_Liste(ligne, champs::Date_A));
  const std::string depart(Lit_Liste(ligne, champs::Depart_Court));
  Label6.SetCaption(depart.empty() ? "" : "Dpt " + depart);
  Label7.SetCaption(Lit_Liste(ligne, champs::Indicatif_A));
  if (etat < 1 || etat > 4) return;
  const auto date = [&ligne](const Champ& champ) { return " le : " + std::string(Champ_Liste(ligne, champ)); };
  Label9.SetCaption(etat == 2 || etat == 4 ? date(champs::QSLE_A) : " : non");
  Label11.SetCaption(etat == 3 || etat == 4 ? date(champs::QSLR_A) : " : non");
}

void QSL::Enregistre_Click() {
  // Each card writes its line before the next one reads it: both at once go from none to sent to both.
  Lignes_Remplacees remplacees;
  if (Check_Envoye.Checked()) {
    Maj_QSL_Envoyee(programme_, remplacees);
    remplacees.Applique(programme_);
  }
  if (Check_Recu.Checked()) {
    Maj_QSL_Recue(programme_, remplacees);
    remplacees.Applique(programme_);
  }
  programme_.Principale().Reprend_Apres_QSL();
  Hide();
  Unload();
}

void QSL::Multiple_Click() {
  auto& multiples = programme_.Fenetre<Multi_QSL>();
  multiples.Indicatif.SetText(Label7.Caption());
  multiples.Liste_QSO.ClearItems();
  multiples.Show();
}

}  // namespace vorelio
