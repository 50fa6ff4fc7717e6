#include "qsl/multi_qsl_window.h"

#include "core/log_line.h"
#include "core/text.h"
#include "forms/grouped_disk.h"
#include "forms/main_window.h"
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

std::vector<std::string> Multi_QSL::Coches() const {
  std::vector<std::string> elements;
  for (int i = 0; i < Liste_QSO.Count(); ++i)
    if (Liste_QSO.Checked(i)) elements.emplace_back(Liste_QSO.Item(i));
  return elements;
}

void Multi_QSL::Enregistre_Carte(const std::string& element, Lignes_Remplacees& remplacees) {
  auto& saisie = programme_.saisie;
  saisie.Etat_QSL_Courant = static_cast<int>(Valeur(Lit_Liste(element, champs::Etat_QSL)));
  const int numero = static_cast<int>(Valeur(Coupe(element, 1, kColonnes_Numero - 1)));
  saisie.Ligne_Selection = programme_.Principale().Journal().Item(numero - 1);
  if (Option2.Set()) Maj_QSL_Recue(programme_, remplacees);
  if (Option1.Set()) Maj_QSL_Envoyee(programme_, remplacees);
}

// A card changes up to two tallies and rewrites the log, and each change waits for the device: the files are changed in
// memory and written once. What they hold then is what cards done one by one leave, up to the one that stops the batch.
void Multi_QSL::Enregistre_Cartes(const std::vector<std::string>& elements) {
  Lignes_Remplacees remplacees;
  std::size_t faites = 0;
  Disque_Groupe pointages(programme_);
  Tenue lot(programme_, [&] {
    const std::string log = programme_.Chemin_Log(programme_.contexte.Station_Indicatif);
    if (pointages.Ecrit(log, [&] { remplacees.Applique(programme_); })) return;
    // The disk has refused something: card by card it is clear how far it goes.
    for (std::size_t i = 0; i < faites; ++i) {
      Lignes_Remplacees une;
      Enregistre_Carte(elements[i], une);
      une.Applique(programme_);
    }
  });
  lot.Pendant([&] {
    for (; faites < elements.size(); ++faites) {
      lot.Modifie();
      Enregistre_Carte(elements[faites], remplacees);
    }
  });
}

void Multi_QSL::Enregistre_Click() {
  const auto elements = Coches();
  if (elements.empty()) return programme_.Message("Selectionnez un ou plusieurs QSO");
  Enregistre_Cartes(elements);
  programme_.Principale().Reprend_Apres_QSL();
  Unload();
}

}  // namespace vorelio
