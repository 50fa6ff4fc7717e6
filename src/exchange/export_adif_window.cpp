#include "exchange/export_adif_window.h"

#include <optional>
#include <string>

#include "core/errors.h"
#include "core/text.h"
#include "exchange/adif_export.h"
#include "forms/main_window.h"
#include "stations/log_file.h"

namespace vorelio {

namespace {

constexpr const char* kFin = ".adi";

/// The box of an error of the files. Two of them keep the words of the time when the file went to a diskette.
std::string Annonce_Erreur(const Erreur_Execution& erreur) {
  std::string annonce = "Erreur " + std::to_string(erreur.Numero());
  if (erreur.Genre() == Erreur::Disque_Non_Pret) annonce += " Pas de disquette dans le lecteur";
  if (erreur.Genre() == Erreur::Permission_Refusee) annonce += " Disquette protegée"_t;
  return annonce;
}

}  // namespace

Export_Adif::Export_Adif(Programme& programme)
    // Operators know the window by this title, slip included.
    : Form(programme, "Export_Adif", "Expotation format ADIF"),
      Option1(*this, "Option1", "Log complet", "Options", true),
      Option2(*this, "Option2", "Log partiel", "Options"),
      Label1(*this, "Label1", "Du N° log"_t),
      Label2(*this, "Label2", "Au N° log"_t) {
  Montre_Tranche(false);
  Option1.Click = [this] { Montre_Tranche(false); };
  Option2.Click = [this] { Montre_Tranche(true); };
  Exporter.Click = [this] { Exporter_Click(); };
}

void Export_Adif::Form_Load() { Centre(); }

// The numbers stay in their fields while these are hidden.
void Export_Adif::Montre_Tranche(bool visible) {
  for (Control* controle : std::initializer_list<Control*>{&Label1, &Debut_Ligne, &Label2, &Fin_Ligne})
    controle->SetVisible(visible);
}

void Export_Adif::Exporter_Click() {
  if (Option2.Set() && (Debut_Ligne.Text().empty() || Fin_Ligne.Text().empty()))
    return programme_.Message("Entrez un N° de debut et de fin de QSO"_t);
  // Both tests look at the numbers also when they are hidden, as the whole log is chosen.
  const double debut = Valeur(Debut_Ligne.Text()), fin = Valeur(Fin_Ligne.Text());
  // The box says the reverse of the test: operators, and what is written for them, know these words.
  if (fin < debut) return programme_.Message("Le N° de fin de ligne est superieur au N° de debut de ligne"_t);

  bool ecrit = false;
  try {
    ecrit = Ecrit_Fichier(debut, fin);
  } catch (const Erreur_Execution& erreur) {
    return programme_.Message(Annonce_Erreur(erreur));
  }
  if (!ecrit) return programme_.Message("Le N° de fin est superieur au dernier N° de QSO"_t);
  programme_.Message("le fichier " + programme_.contexte.Station_Indicatif + kFin +
                     " a été sauvegardé dans le répertoire\r\n"_t + programme_.Chemin_Programme());
  Unload();
}

bool Export_Adif::Ecrit_Fichier(double debut, double fin) {
  const std::string log = Sous_Programmes::Texte_Log(programme_);
  if (fin > Nombre_De_Lignes(log)) return false;
  const auto tranche = Option1.Set() ? std::nullopt : std::optional(Tranche{debut, fin});
  programme_.Disque().WriteAll(programme_.Chemin_Station(kFin),
                               Fichier_Adif(programme_.Principale().Indicatif_Affiche(), log, tranche));
  return true;
}

}  // namespace vorelio
