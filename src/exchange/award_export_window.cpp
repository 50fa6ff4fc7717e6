#include "exchange/award_export_window.h"

#include "core/log_line.h"
#include "core/text.h"
#include "forms/main_window.h"

namespace vorelio {

namespace {

/// The companions' section; the blank at its end belongs to the name.
const std::string kSection = "Setup ";

}  // namespace

Exporter_QSO::Exporter_QSO(Programme& programme) : Form(programme, "Exporter_QSO", "Exporter un QSO") {
  C_Oui.Click = [this] { C_Oui_Click(); };
  C_Non.Click = [this] { C_Non_Click(); };
}

void Exporter_QSO::Form_Load() {
  Centre();
  Label9.SetCaption("");
  Label10.SetCaption("");
  C_Oui.SetEnabled(false);
  const std::string& ligne = programme_.saisie.Ligne_Selection;
  Label3.SetCaption(Lit_Liste(ligne, champs::Indicatif_A));
  const std::string activation(Lit_Liste(ligne, champs::QTH_A));
  Label5.SetCaption(activation);

  // Each row that occurs counts, and what an earlier one has enabled or said stays.
  int type = 0;
  for (const Compagnon& compagnon : kCompagnons) {
    ++type;
    if (activation.find(compagnon.sigle) == std::string::npos) continue;
    Label7.SetCaption(compagnon.nom);
    type_ = type;
    if (Reglage(compagnon, kSection, "Indicatif Station", kStation_Modele) == kStation_Modele) {
      Label9.SetCaption(compagnon.nom);
      Label10.SetCaption(" n'existe pas sur ce PC");
      C_Non.SetEnabled(true);
    } else {
      C_Oui.SetEnabled(true);
    }
  }

  TextField& indicatif = programme_.Principale().Champ_Indicatif();
  if (type_ == 0) {
    Label9.SetCaption("Type de QSO ");
    Label10.SetCaption(" non gere sur ce PC");
  } else {
    indicatif.SetEnabled(true);
  }
  indicatif.SetFocus();
}

// The contact is the one that the main window has selected now, the award the one found at the opening.
void Exporter_QSO::C_Oui_Click() {
  if (type_ == 0) return;
  const Compagnon& compagnon = kCompagnons[static_cast<std::size_t>(type_ - 1)];
  const std::string& item = programme_.saisie.Ligne_Selection;
  const std::string reference = Reference_Activation(compagnon, item);
  const std::string ligne = Ligne_Compagnon(compagnon, item);
  switch (type_) {
    case 1: return Cherche_Double_DFCF(reference, ligne);
    case 2: return Cherche_Double_DMF(reference, ligne);
    case 3: return Cherche_Double_DCI(reference, ligne);
    case 4: return Cherche_Double_DAI(reference, ligne);
    default: return Cherche_Double_DPLF(reference, ligne);
  }
}

void Exporter_QSO::Cherche_Double_DFCF(const std::string& reference, const std::string& ligne) {
  Cherche_Double(kCompagnons[0], reference, ligne);
}

void Exporter_QSO::Cherche_Double_DMF(const std::string& reference, const std::string& ligne) {
  Cherche_Double(kCompagnons[1], reference, ligne);
}

void Exporter_QSO::Cherche_Double_DCI(const std::string& reference, const std::string& ligne) {
  Cherche_Double(kCompagnons[2], reference, ligne);
}

void Exporter_QSO::Cherche_Double_DAI(const std::string& reference, const std::string& ligne) {
  Cherche_Double(kCompagnons[3], reference, ligne);
}

void Exporter_QSO::Cherche_Double_DPLF(const std::string& reference, const std::string& ligne) {
  Cherche_Double(kCompagnons[4], reference, ligne);
}

void Exporter_QSO::Cherche_Double(const Compagnon& compagnon, const std::string& reference, const std::string& ligne) {
  const char separateur = programme_.plateforme.separator;
  const std::string dossier =
      Reglage(compagnon, kSection, "Chemin Repertoire", std::string("X:") + separateur + "XXXXXXX");
  const std::string station = Reglage(compagnon, kSection, "Indicatif Station", kStation_Modele);
  // The run goes on with the companion's station: operators keep both programs on the same one.
  programme_.contexte.Station_Indicatif = station;
  const std::string annee =
      compagnon.tournoi ? Reglage(compagnon, kSection + station, "Annee Tournoi", "XXXX") : std::string();
  std::string chemin = dossier + separateur + Forme_Fichier(station);
  chemin.append(compagnon.suite).append(Forme_Fichier(annee)).append(compagnon.fin);

  const Deja_Contacte connu = Cherche_Reference(compagnon, programme_.Disque().ReadAll(chemin), reference);
  if (connu.trouve) {
    programme_.Message("Activation " + std::string(compagnon.sigle) + " " + reference + " deja contactée le "_t +
                       connu.date);
  } else {
    programme_.Disque().Append(chemin, ligne + std::string(kFin_De_Ligne));
  }
  if (!compagnon.zone_neuve.empty() && !connu.zone_vue)
    programme_.Message(std::string(Coupe(reference, 1, 2)).append(compagnon.zone_neuve));
  Unload();
}

std::string Exporter_QSO::Reglage(const Compagnon& compagnon, const std::string& section, const std::string& cle,
                                  const std::string& defaut) const {
  return programme_.plateforme.settings.Read(std::string(compagnon.application), section, cle).value_or(defaut);
}

}  // namespace vorelio
