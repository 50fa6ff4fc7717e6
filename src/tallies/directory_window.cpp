#include "tallies/directory_window.h"

#include "core/text.h"
#include "tallies/callsign_directory.h"

namespace vorelio {

using namespace Sous_Programmes;

namespace {

constexpr std::size_t kIndicatif_Au_Plus = 10;
constexpr std::size_t kDepartement_Au_Plus = 2;
constexpr std::size_t kLocator_Au_Plus = 6;

}  // namespace

Fichier_Nomenclature::Fichier_Nomenclature(Programme& programme)
    : Form(programme, "Fichier_Nomenclature", "Edition du fichier Nomenclature.txt") {
  Liste_Nomenclature.Click = [this] { Liste_Nomenclature_Click(); };
  Ind_Edit.KeyPress = Loc_Edit.KeyPress = [](int& touche) { touche = Touche_Majuscule(touche); };
  Ajouter.Click = [this] { Ajouter_Click(); };
  Editer.Click = [this] { Editer_Click(); };
  Supprimer.Click = [this] { Supprimer_Click(); };
}

void Fichier_Nomenclature::Form_Load() {
  Centre();
  Charge_Nomenclature(programme_);
}

void Fichier_Nomenclature::Form_Unload() {
  if (programme_.Question("Sauvegarder fichier Nomenclature.txt avant de quitter?", Guard::MustChoose))
    Ecrit_Nomenclature(programme_, Liste_Nomenclature.Items());
}

void Fichier_Nomenclature::Liste_Nomenclature_Click() {
  const Fiche_Nomenclature fiche = Lit_Nomenclature(Liste_Nomenclature.Text());
  Ind_Edit.SetText(fiche.indicatif);
  Dep_Edit.SetText(fiche.departement);
  Loc_Edit.SetText(fiche.locator);
}

std::string Fichier_Nomenclature::Ligne_Saisie() const {
  return Debut_Nomenclature(Majuscules(Ind_Edit.Text()), Dep_Edit.Text()) +
         Complete_Gauche(Loc_Edit.Text(), kLocator_Au_Plus);
}

void Fichier_Nomenclature::Vide_Champs() {
  for (TextField* champ : {&Ind_Edit, &Dep_Edit, &Loc_Edit}) champ->Clear();
}

void Fichier_Nomenclature::Ajouter_Click() {
  const std::string& indicatif = Ind_Edit.Text();
  if (indicatif.empty() || indicatif.size() > kIndicatif_Au_Plus)
    return programme_.Message("Attention pas d'indicatif ou indicatif superieur a 10 caracteres");
  if (Loc_Edit.Text().empty() || Loc_Edit.Text().size() > kLocator_Au_Plus)
    return programme_.Message("Attention pas de locator ou locator superieur a 6 caracteres");
  for (const std::string_view ligne : Liste_Nomenclature.Items())
    if (Lit_Nomenclature(ligne).indicatif == indicatif)
      return programme_.Message("Attention l'indicatif " + indicatif + " est deja present dans le fichier");
  Liste_Nomenclature.AddItem(Ligne_Saisie());
  Vide_Champs();
}

void Fichier_Nomenclature::Editer_Click() {
  if (Ind_Edit.Text().empty()) return programme_.Message("Selectionnez une ligne d'abord");
  if (Ind_Edit.Text().size() > kIndicatif_Au_Plus)
    return programme_.Message("Attention Indicatif superieur a 10 caracteres");
  if (Loc_Edit.Text().size() > kLocator_Au_Plus)
    return programme_.Message("Attention locator superieur a 6 caracteres");
  if (Dep_Edit.Text().size() > kDepartement_Au_Plus)
    return programme_.Message("Attention departement superieur a 2 caracteres");
  const std::string neuve = Ligne_Saisie();
  Liste_Nomenclature.RemoveItem(Liste_Nomenclature.ListIndex());
  Liste_Nomenclature.AddItem(neuve);
  Vide_Champs();
}

void Fichier_Nomenclature::Supprimer_Click() {
  if (Ind_Edit.Text().empty()) return programme_.Message("Selectionnez une ligne d'abord");
  Liste_Nomenclature.RemoveItem(Liste_Nomenclature.ListIndex());
  Ind_Edit.Clear();
  Loc_Edit.Clear();
}

}  // namespace vorelio
