#include "qsl/multi_qsl_window.h"

#include "core/log_line.h"
#include "core/main_window.h"
#include "core/text.h"
#include "qsl/qsl_state.h"
#include "qsl/qsl_window.h"

namespace vorelio {

using namespace Sous_Programmes;

Multi_QSL::Multi_QSL(Programme& programme)
    : Form(programme, "Multi_QSL", "Enregistrement des QSL multiples"),
      Option1(*this, "Option1", "la liste des QSL   non envoyées"_t, "Option", true),
      Option2(*this, "Option2", "la liste des QSL    non  reçues"_t, "Option"),
      Label4(*this, "Label4", "envoyées"_t) {
  Enregistre.SetEnabled(false);
  Option1.Click = [this] { Option1_Click(); };
  Option2.Click = [this] { Option2_Click(); };
  Recherche.Click = [this] { Recherche_Click(); };
  Enregistre.Click = [this] { Enregistre_Click(); };
}

void Multi_QSL::Form_Load() {
  Centre();
  Liste_QSO.ClearItems();
}

void Multi_QSL::Form_Unload() {
  if (auto* qsl = programme_.Ouverte<QSL>()) qsl->Unload();
}

void Multi_QSL::Option1_Click() {
  Liste_QSO.ClearItems();
  Label4.SetCaption("envoyées"_t);
}

void Multi_QSL::Option2_Click() {
  Liste_QSO.ClearItems();
  Label4.SetCaption("reçues"_t);
}

void Multi_QSL::Recherche_Click() {
  Liste_QSO.ClearItems();
  Enregistre.SetEnabled(true);
  const std::string motif = Majuscules(Indicatif.Text());
  // The state of a contact that has the other card alone lacks this one.
  const std::string_view autre = Option1.Set() ? "3" : "2";
  for (const std::string_view ligne : programme_.Principale().Journal().Items()) {
    const std::string_view etat = Lit_Liste(ligne, champs::Etat_QSL);
    if (Lit_Liste(ligne, champs::Indicatif_A).find(motif) == std::string_view::npos) continue;
    if (etat == "1" || etat == autre) Liste_QSO.AddItem(ligne);
  }
}

bool Multi_QSL::Enregistre_Coches() {
  const auto& log = programme_.Principale().Journal();
  auto& saisie = programme_.saisie;
  Lignes_Remplacees remplacees;
  // A card changes up to two tallies, and each change would wait for the device.
  Disque_Tenu::Groupe pointages(programme_.Disque());
  bool fait = false;
  try {
    for (int i = 0; i < Liste_QSO.Count(); ++i) {
      if (!Liste_QSO.Checked(i)) continue;
      const std::string_view element = Liste_QSO.Item(i);
      saisie.Etat_QSL_Courant = static_cast<int>(Valeur(Lit_Liste(element, champs::Etat_QSL)));
      const int numero = static_cast<int>(Valeur(Coupe(element, 1, kColonnes_Numero - 1)));
      saisie.Ligne_Selection = log.Item(numero - 1);
      if (Option2.Set()) Maj_QSL_Recue(programme_, remplacees);
      if (Option1.Set()) Maj_QSL_Envoyee(programme_, remplacees);
      fait = true;
    }
    pointages.Acheve();
  } catch (...) {
    // The cards before the failure have reached the tallies: they are to be in the log as well.
    remplacees.Applique(programme_);
    throw;
  }
  remplacees.Applique(programme_);
  return fait;
}

void Multi_QSL::Enregistre_Click() {
  if (!Enregistre_Coches()) return programme_.Message("Selectionnez un ou plusieurs QSO");
  programme_.Principale().Reprend_Apres_QSL();
  Unload();
}

}  // namespace vorelio
