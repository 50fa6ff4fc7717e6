#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/log_line.h"
#include "forms/controls.h"
#include "forms/main_window.h"
#include "forms/programme.h"

namespace vorelio {

/// The main window: one entry chain driven by Enter, the department grid, the log underneath, and the menus. Its
/// definitions stand in chapters: ddfm_start.cpp, ddfm_callsign_chain.cpp, ddfm_activation.cpp, ddfm_date_reports.cpp,
/// ddfm_save.cpp, ddfm_review.cpp, ddfm_grid.cpp, ddfm_menus.cpp.
class DDFM : public Fenetre_Principale {
 public:
  explicit DDFM(Programme& programme);

  void Form_Load() override;

  // --- Station and clocks ---
  Frame Frame5{*this, "Frame5"};        ///< "Vorelio de " and the callsign.
  Label I_Station{*this, "I_Station"};  ///< Callsign with "/".
  Label L_Station{*this, "L_Station"};  ///< Locator.
  Label Label15{*this, "Label15"};      ///< "Date automatique" or "Date manuelle".
  Label Label33{*this, "Label33"};      ///< Date, UTC or local by the option.
  Label Label34{*this, "Label34"};      ///< Local time.
  Label Label37{*this, "Label37"};      ///< UTC time.
  Timer Timer1{*this, "Timer1", 1000};

  // --- Entry form, in the order of the chain ---
  Frame Frame4{*this, "Frame4"};  ///< Number of the contact.
  ComboBox Bande_A;
  TextField Indicatif_A{*this, "Indicatif_A"};
  Label Label5{*this, "Label5", "Indicatif"};  ///< "Contacté le ...", "Nouvel indicatif".
  TextField Depart_A{*this, "Depart_A"};
  TextField Locator_A{*this, "Locator_A"};
  ComboBox Mode_A;
  ComboBox Activ_A;
  TextField Date_A{*this, "Date_A"};
  TextField Debut_A{*this, "Debut_A"};
  TextField Fin_A{*this, "Fin_A"};
  TextField RSTE_A{*this, "RSTE_A", "59"};
  TextField RSTR_A{*this, "RSTR_A", "59"};
  TextField Prenom_A{*this, "Prenom_A"};
  TextField QTH_A{*this, "QTH_A"};
  TextField Remarques_A{*this, "Remarques_A"};
  TextField Distance_A{*this, "Distance_A"};
  TextField Azimut_A{*this, "Azimut_A"};
  TextField QSLE_A{*this, "QSLE_A"};
  TextField QSLR_A{*this, "QSLR_A"};
  Button Enregistrer{*this, "Enregistrer", "QSO Suivant"};
  Button Annuler{*this, "Annuler", "Annuler Saisie"};
  Button Editer{*this, "Editer", "Editer QSO"};
  Button Effacer{*this, "Effacer", "Effacer QSO"};
  Button Recherche{*this, "Recherche", "Chercher QSO"};
  Button Gestion_QSL{*this, "Gestion_QSL", "Gestion QSL"};
  Button Exporter{*this, "Exporter", "Exporter QSO"};
  Button Command1{*this, "Command1", "Cluster"};
  Label NB_Debug{*this, "NB_Debug"};  ///< The step that a save has reached.
  Label Etat{*this, "Etat"};          ///< Status line: how far an import is, what it has brought.

  // --- Grid ---
  Frame Frame3;
  ControlArray<TextField> Dpt{*this, "Dpt", 0, 100};
  ControlArray<OptionButton> Option1;  ///< 1: departments, 0: squares.
  ComboBox Bande_DDFM{*this, "Bande_DDFM", ComboBox::Kind::Choice};
  ComboBox Carre_DDFM{*this, "Carre_DDFM", ComboBox::Kind::Choice, "JN"};
  Label Label27;  ///< Legend: worked.
  Label Label26;  ///< Legend: QSL sent.
  Label Label30;  ///< Legend: QSL received.
  Label Label1;   ///< Legend: confirmed.

  // --- Log ---
  ListBox Liste_QSO{*this, "Liste_QSO", ListBox::Kind::Sorted};
  ListBox Liste_QSO_Bis{*this, "Liste_QSO_Bis", ListBox::Kind::Sorted};  ///< Its hidden twin.

  // --- Menus ---
  MenuItem Mnu_Indicatif, Mnu_Val_Sauve, Mnu_Restauration, Mnu_Restau_Activite, Mnu_RAZ_All, Mnu_Quitter;
  MenuItem Mnu_Import_ADIF{*this, "Mnu_Import_ADIF", "Importer un fichier ADIF (un QSO par ligne)"};
  MenuItem Mnu_Import_EDI{*this, "Mnu_Import_EDI", "Importer un fichier EDI (un QSO par ligne)"};
  MenuItem Mnu_Import_CTF{*this, "Mnu_Import_CTF", "Importer un fichier CTF"};
  MenuItem Mnu_Export_Adif{*this, "Mnu_Export_Adif", "Exporter le fichier log au format ADIF"};
  MenuItem Mnu_Import_Journal{*this, "Mnu_Import_Journal", "Importer le journal d'un autre logiciel..."};
  MenuItem Mnu_Export_Journal{*this, "Mnu_Export_Journal", "Exporter pour un autre logiciel..."};
  MenuItem Mnu_Auto_Oui, Mnu_Auto_Non, Mnu_UTC_Oui, Mnu_UTC_Non, Mnu_Sep_Oui, Mnu_Sep_Non, Mnu_Exp_Oui, Mnu_Exp_Non;
  MenuItem Mnu_Nomenclature, Mnu_Prefixe, Mnu_Ajout_Activite;
  MenuItem Mnu_MAJ_Prefixe, Mnu_MAJ_Departement, Mnu_MAJ_Locator;
  MenuItem Mnu_Carte_Dpt{*this, "Mnu_Carte_Dpt", "Carte des departements contactés"_t};
  MenuItem Mnu_Carte_Activation{*this, "Mnu_Carte_Activation", "Carte des Activations contactées"_t};
  MenuItem Mnu_Carte_Loc{*this, "Mnu_Carte_Loc", "Carte des locators contactés"_t};
  MenuItem Mnu_Stat_QSO{*this, "Mnu_Stat_QSO", "Generales des QSO"};
  MenuItem Mnu_Stat_Dist, Mnu_Stat_Prefixe, Mnu_Stat_DFCF;
  MenuItem Mnu_Imprime_Tout{*this, "Mnu_Imprime_Tout", "le log"};
  MenuItem Mnu_Print_Activite;
  MenuItem Mnu_Print_QSL{*this, "Mnu_Print_QSL", "des etiquettes pour QSL"};
  MenuItem Mnu_Notes{*this, "Mnu_Notes", "Notes"};
  MenuItem Mnu_Mode_Emploi, Mnu_Historique, Mnu_A_Propos;

  // --- What the rest of the program uses ---
  ListBox& Journal() override { return Liste_QSO; }
  void Annonce_Numero(int numero) override;
  void Reprend_Apres_QSL() override;
  void Dit(std::string_view texte) override { Etat.SetCaption(texte); }
  const Cellules& Grille() const override { return Dpt; }
  const std::string& Bande_Choisie() const override { return Bande_DDFM.Text(); }
  const std::string& Champ_Choisi() const override { return Carre_DDFM.Text(); }
  void Peint_Departements() override;
  void Legende_Departements() override;
  void Repeint_Grille() override;
  const std::string& Indicatif_Affiche() const override { return I_Station.Caption(); }
  void Affiche_Station() override;
  void Charge_Bande_Mode() override;
  void Charge_Activites(int defaut_nombre, std::string_view defaut_nom = "err1") override;
  void Montre_Options() override;
  bool Saisie_En_UTC() const override { return Mnu_UTC_Oui.Checked(); }
  void Attend_Bande() override { Bande_A.SetFocus(); }
  TextField& Champ_Indicatif() override { return Indicatif_A; }
  void Permet_Imports(bool permis) override {
    EnableAll({&Mnu_Import_ADIF, &Mnu_Import_EDI, &Mnu_Import_CTF, &Mnu_Import_Journal}, permis);
  }

 private:
  // Start-up.
  void Relie_Evenements();
  void Relie_Menus();
  void Timer1_Timer();
  void Choisit_Activite();
  /// The fields that are locked between two contacts.
  std::vector<Control*> Champs_De_La_Chaine();
  void Verrouille_Champs();
  /// One step of the entry chain: from a field that is done to the next one.
  static void Avance(Control& passe, Control& suivant);

  // Callsign chain.
  void Bande_A_Click();
  void Bande_A_KeyPress(int& touche);
  void Indicatif_A_KeyPress(int& touche);
  void Depart_A_KeyPress(int& touche);
  void Locator_A_KeyPress(int& touche);
  void Mode_A_KeyPress(int& touche);
  void Cherche_Indicatif();
  void Calcule_Distance_Azimut();
  /// True, with the message, if `champ` is longer than `limite`.
  bool Trop_Long(const Control& champ, std::size_t limite, const std::string& message);

  // Activation.
  void Activ_A_KeyPress(int& touche);
  bool Reference_Bonne();
  void Date_Et_Heure_Du_Moment();

  // Date, times, reports, texts.
  void Date_A_KeyPress(int& touche);
  void Debut_A_KeyPress(int& touche);
  void Fin_A_KeyPress(int& touche);
  void RSTE_A_KeyPress(int& touche);
  void RSTR_A_KeyPress(int& touche);
  void Prenom_A_KeyPress(int& touche);
  void QTH_A_KeyPress(int& touche);
  void Remarques_A_KeyPress(int& touche);
  bool Heure_Refusee(const TextField& champ);
  bool Acceptee(int touche) const;
  static void Separe(TextField& champ, std::string_view separateur);

  // Save.
  void Enregistrer_Click();
  void Enregistre_Nouveau();
  /// False if the form stays in edit mode.
  bool Enregistre_Edition();
  void Question_Repertoire();
  void Propose_Export();
  Champs_QSO Champs_Saisis() const;
  void Prepare_Suivant();

  // Review, edit, delete.
  void Liste_QSO_Click();
  void Liste_QSO_DblClick();
  void Editer_Click();
  void Effacer_Click();
  void Annuler_Click();
  void Gestion_QSL_Click();
  void Recherche_Click();
  bool Rien_De_Choisi();
  void Montre_Ligne();
  void Montre_QSL();
  /// Empties the fields of a contact, as before a new one.
  void Vide_Saisie();
  /// Waits for a callsign, every field after it locked.
  void Attend_Indicatif();

  // Grid.
  /// The text of a cell in department mode.
  static std::string Texte_Cellule(int cellule);
  void Grille_Departements();
  void Grille_Carres();
  bool Bande_Sans_Carres();
  void Option1_Click();
  void Bande_DDFM_Click();
  void Carre_DDFM_Click();
  void Dpt_DblClick(int cellule);

  // Menus.
  void Mnu_Date_Automatique(bool automatique);
  void Mnu_Restauration_Click();
  void Mnu_RAZ_All_Click();
  void Mnu_Imprime_Tout_Click();
};

}  // namespace vorelio
