#include "cluster/cluster_window.h"
#include "core/text.h"
#include "entry/ddfm.h"
#include "exchange/adif_import.h"
#include "exchange/award_export_window.h"
#include "exchange/edi_import.h"
#include "exchange/export_adif_window.h"
#include "exchange/import_journal_window.h"
#include "exchange/journal_export.h"
#include "exchange/native_import.h"
#include "forms/manual.h"
#include "maintenance/add_activity_window.h"
#include "maintenance/backup.h"
#include "maintenance/backup_settings_window.h"
#include "maintenance/notes_window.h"
#include "maintenance/rebuild.h"
#include "maintenance/restore_activities_window.h"
#include "maps/activity_map.h"
#include "maps/department_map.h"
#include "maps/locator_maps.h"
#include "maps/tally_painting.h"
#include "printing/print_activity_window.h"
#include "printing/print_log_window.h"
#include "printing/select_qso_window.h"
#include "stations/log_file.h"
#include "stations/log_guard.h"
#include "stations/station_files.h"
#include "stations/station_form.h"
#include "statistics/activation_statistics_window.h"
#include "statistics/distance_statistics_window.h"
#include "statistics/prefix_statistics_window.h"
#include "statistics/qso_statistics_window.h"
#include "tallies/add_prefix_window.h"
#include "tallies/department_tally.h"
#include "tallies/directory_window.h"

namespace vorelio {

using namespace Sous_Programmes;

void DDFM::Relie_Menus() {
  // A pair of entries of which the checked one is the setting's value; a button may go with it.
  const auto option = [this](MenuItem& oui, MenuItem& non, const char* cle, Button* bouton = nullptr) {
    const auto choix = [this, &oui, &non, cle, bouton](bool valeur) {
      oui.SetChecked(valeur);
      non.SetChecked(!valeur);
      programme_.reglages.Ecrit_Station(cle, Texte_Booleen(valeur));
      if (bouton) bouton->SetEnabled(valeur);
    };
    oui.Click = [choix] { choix(true); };
    non.Click = [choix] { choix(false); };
  };
  option(Mnu_UTC_Oui, Mnu_UTC_Non, "Heure UTC");
  option(Mnu_Sep_Oui, Mnu_Sep_Non, "Separateur");
  option(Mnu_Exp_Oui, Mnu_Exp_Non, "Exporter QSO", &Exporter);
  Mnu_Auto_Oui.Click = [this] { Mnu_Date_Automatique(true); };
  Mnu_Auto_Non.Click = [this] { Mnu_Date_Automatique(false); };

  Mnu_Indicatif.Click = [this] { programme_.Fenetre<Station>().Show(); };
  Mnu_Val_Sauve.Click = [this] { programme_.Fenetre<Delta_QSO>().Show(); };
  Mnu_Restauration.Click = [this] { Mnu_Restauration_Click(); };
  Mnu_Restau_Activite.Click = [this] { programme_.Fenetre<Restoration_Activite>().Show(); };
  Mnu_Import_ADIF.Click = [this] { Importe_ADIF(programme_); };
  Mnu_Import_EDI.Click = [this] { Importe_EDI(programme_); };
  Mnu_Import_CTF.Click = [this] { Importe_CTF(programme_); };
  Mnu_Export_Adif.Click = [this] { programme_.Fenetre<Export_Adif>().Show(); };
  Mnu_Import_Journal.Click = [this] { Importe_Journal(programme_); };
  Mnu_Export_Journal.Click = [this] { Exporte_Journal(programme_); };
  Exporter.Click = [this] { programme_.Fenetre<Exporter_QSO>().Show(); };
  Command1.Click = [this] { programme_.Fenetre<Cluster>().Show(); };
  Mnu_Quitter.Click = [this] { Unload(); };
  Mnu_Nomenclature.Click = [this] { programme_.Fenetre<Fichier_Nomenclature>().Show(); };
  Mnu_Prefixe.Click = [this] { programme_.Fenetre<Ajout_Prefixe>().Show(); };
  Mnu_Ajout_Activite.Click = [this] { programme_.Fenetre<Ajout_Activite>().Show(); };
  Mnu_MAJ_Prefixe.Click = [this] { Refait_Prefixes(programme_); };
  Mnu_MAJ_Departement.Click = [this] { Refait_Departements(programme_); };
  Mnu_MAJ_Locator.Click = [this] { Refait_Locators(programme_); };
  Mnu_Carte_Dpt.Click = [this] { programme_.Fenetre<Carte>().Show(); };
  Mnu_Carte_Activation.Click = [this] { programme_.Fenetre<Carte_Acti>().Show(); };
  Mnu_Carte_Loc.Click = [this] { programme_.Fenetre<Select_Locator>().Show(); };
  Mnu_RAZ_All.Click = [this] { Mnu_RAZ_All_Click(); };
  Mnu_Stat_QSO.Click = [this] { programme_.Fenetre<Statistique_QSO>().Show(); };
  Mnu_Stat_Dist.Click = [this] { programme_.Fenetre<Statistiques>().Show(); };
  Mnu_Stat_DFCF.Click = [this] { programme_.Fenetre<Statistique_DFCF>().Show(); };
  Mnu_Stat_Prefixe.Click = [this] { programme_.Fenetre<Statistique_Prefixe>().Show(); };
  Mnu_Imprime_Tout.Click = [this] { Mnu_Imprime_Tout_Click(); };
  Mnu_Print_Activite.Click = [this] { programme_.Fenetre<Print_Activite>().Show(); };
  Mnu_Print_QSL.Click = [this] { programme_.Fenetre<Select_QSO>().Show(); };
  Mnu_Notes.Click = [this] { programme_.Fenetre<Notes>().Show(); };
  Mnu_Mode_Emploi.Click = [this] { Ouvre_Mode_Emploi(programme_); };
  Mnu_Historique.Click = [this] { programme_.Message(Historique_Revisions()); };
  Mnu_A_Propos.Click = [this] {
    programme_.Message(std::string("Vorelio\r\n   revision ") + Revision_Programme +
                       "\r\n\r\nUn carnet de trafic pour les radioamateurs français, par F4VRL\r\n\r\n"
                       "Contours des départements : MapSVG et svg-maps, CC BY 4.0\r\n"
                       "Côtes et frontières : Natural Earth, domaine public, par world-atlas, ISC\r\n"
                       "Préfixes : liste DXCC de l'ARRL et séries d'indicatifs de l'UIT\r\n"
                       "Les licences sont à la fin du mode d'emploi."_t);
  };
}

void DDFM::Mnu_Date_Automatique(bool automatique) {
  Mnu_Auto_Oui.SetChecked(automatique);
  Mnu_Auto_Non.SetChecked(!automatique);
  Label15.SetCaption(automatique ? "Date automatique" : "Date manuelle");
  programme_.reglages.Ecrit_Station("Date Automatique", Texte_Booleen(automatique));
  if (!automatique) return;
  Date_A.Clear();
  Remarques_A.Clear();
}

void DDFM::Mnu_Restauration_Click() {
  Etat.SetCaption(Decrit_Sauvegarde(programme_));
  if (!programme_.Avertissement("   !!! ATTENTION !!! Tout les fichiers vont etre effacé\r\n"
                                "et remplacé par ceux de la derniere sauvegarde, Continuer ?"_t))
    return;
  Restaure_Sauvegarde(programme_);
  programme_.Message(
      "Les fichiers :\r\n\r\nIndicatif.log\r\nDepartement.txt\r\nLocator.txt\r\nPrefixe.txt\r\nSont restaurés"_t);
  Charge_Log(programme_, programme_.contexte.Station_Indicatif);
}

void DDFM::Mnu_RAZ_All_Click() {
  auto& contexte = programme_.contexte;
  if (!programme_.Avertissement("!!! ATTENTION !!! tout les fichiers " + contexte.Station_Indicatif +
                                " vont etre effacé , Continuer ?"_t))
    return;
  const std::string log = programme_.Chemin_Log(contexte.Station_Indicatif);
  Protege_Log(programme_, log);
  programme_.Disque().Copy(programme_.Chemin_Modele(".log"), log);
  for (const char* suite : {kSuite_Departement, kSuite_Prefixe, kSuite_Locator})
    programme_.Disque().Copy(programme_.Chemin_Modele(suite), programme_.Chemin_Station(suite));
  Bande_A.SetEnabled(true);
  Bande_A.SetFocus();
  Affiche_Departements(programme_, contexte.Bande_Grille, contexte.Nb_Contactes);
  Charge_Log(programme_, contexte.Station_Indicatif);
  // The word "SSB" stands there whatever the mode is.
  Frame3.SetCaption(Texte_Nombre_Blanc(contexte.Nb_Contactes) + " Dpts contactée sur  "_t + contexte.Bande_Grille +
                    " en SSB");
  Bande_A.SetColour(kSaisie);
  Mode_A.SetColour(kFait);
  Bande_A.SetFocus();
}

void DDFM::Mnu_Imprime_Tout_Click() {
  auto& fenetre = programme_.Fenetre<Print_Log>();
  fenetre.Debut_Ligne.Clear();
  fenetre.Fin_Ligne.Clear();
  fenetre.Show();
}

}  // namespace vorelio
