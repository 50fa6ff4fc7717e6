#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "cluster/cat_frames.h"
#include "cluster/cluster_page.h"
#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// The spots of one band, from a page of the cluster site that is read anew every minute. A click on a spot tunes the
/// transceiver. Its definitions stand in two chapters: cluster_window.cpp, transceiver.cpp.
class Cluster : public Form {
 public:
  explicit Cluster(Programme& programme);

  void Form_Load() override;
  void Form_Unload() override;

  // --- Page ---
  ComboBox Bande_CL{*this, "Bande_CL", ComboBox::Kind::Choice};
  Button Afficher{*this, "Afficher", "Afficher"};
  Label Patientez{*this, "Patientez", "Patientez"};  ///< Enabled while a page is awaited.
  Label Label2{*this, "Label2", "Page mise a jour toutes les minutes, la derniere a "};
  Label QTR{*this, "QTR"};    ///< Time of the last page.
  Label Site{*this, "Site"};  ///< The site's address, or where to set it.
  Timer Timer2{*this, "Timer2", 60000, false};

  // --- Spots ---
  OptionButton Option1{*this, "Option1", "Tri par QTR", "Tri", true};
  OptionButton Option2{*this, "Option2", "Tri par Indicatif", "Tri"};
  OptionButton Option3{*this, "Option3", "Tri par QRG", "Tri"};
  CheckBox Check1{*this, "Check1", "Filtre stations Francaises"};
  CheckBox Check2{*this, "Check2", "Filtre prefixe ou Indicatif"};
  TextField Indicatif{*this, "Indicatif"};
  CheckBox Check3{*this, "Check3", "Son"};
  Label Label11{*this, "Label11", Entete_Liste(Tri::QTR)};  ///< Heading of the list.
  ListBox Liste_Stations{*this, "Liste_Stations", ListBox::Kind::Sorted};
  Button Memoriser{*this, "Memoriser", "Memoriser"};
  Button Voir_Mem{*this, "Voir_Mem", "Voir Memoire"};

  // --- Transceiver ---
  ComboBox Emetteur{*this, "Emetteur", ComboBox::Kind::Choice};
  Label NumPort{*this, "NumPort", "0"};      ///< Port in use, 0 for none.
  Label DebitPort{*this, "DebitPort", "0"};  ///< Its speed.
  Label Nom_Port{*this, "Nom_Port"};         ///< The device that it is.

  // --- Menus ---
  MenuItem Mnu_SansCom{*this, "Mnu_SansCom", "Sans Com"};
  MenuItem Mnu_Com1{*this, "Mnu_Com1", "Com 1"};
  MenuItem Mnu_Com2{*this, "Mnu_Com2", "Com 2"};
  MenuItem Mnu_Ports{*this, "Mnu_Ports", "Ports du système…"_t};
  MenuItem Mnu_4800{*this, "Mnu_4800", "4800"};
  MenuItem Mnu_9600{*this, "Mnu_9600", "9600"};
  MenuItem Mnu_19200{*this, "Mnu_19200", "19200"};
  MenuItem Mnu_57600{*this, "Mnu_57600", "57600"};
  MenuItem Mnu_Adresse{*this, "Mnu_Adresse", "Adresse du site…"_t};

  // --- What other windows use ---

  /// The line last clicked or memorised, here or in the memory.
  std::string Ligne_Cluster;
  /// Whether a click in the memory tunes as well. Nothing sets it: the lines there may have the columns of another sort
  /// order than the one in force, and a frequency cut out of the wrong columns ends the program.
  bool Memoire_Pilote = false;

  Tri Tri_Choisi() const;
  /// Fetches the page of the band and lists its spots. A load that is under way goes on alone: nothing happens then.
  void Charge_Cluster();
  /// Tunes the chosen transceiver to the frequency of `Ligne_Cluster`. A frequency that is no number is run-time error
  /// 13.
  void Envoie_Qrg();
  /// The site has another address: what a failed load has locked is open again.
  void Adresse_Changee();
  /// The ports have other devices: the one in use moves to its new one.
  void Ports_Changes();

 private:
  // Page and spots.
  void Timer2_Timer();
  void Indicatif_KeyPress(int& touche);
  void Tri_Ou_Filtre_Click();
  void Liste_Stations_Click();
  void Memoriser_Click();
  void Voir_Mem_Click();
  /// True if a page has come and all of it is in the list.
  bool Charge_Page();
  std::string Demande_Page();
  std::string Reecrit_Page(std::string page);
  void Liste_Page(const std::string& texte);
  void Choisit_Ligne();
  void Joue_Son(const std::string& chemin);
  void Annonce_Echec(const char* son);
  bool Abandonnee() const { return Unloaded() || programme_.Termine_Deja(); }
  void Reste_Ouverte() const;
  void Montre_Site();

  // Port.
  void Lit_Port();
  void Mnu_SansCom_Click();
  void Mnu_Com_Click(int numero);
  void Mnu_Debit_Click(const MenuItem& debit);
  void Ouvre_Port();
  void Coche_Port(const MenuItem& choix);
  void Coche_Debit(const MenuItem* choix);
  void Montre_Port();
  /// Runs what uses the port; a port that fails, as one that has been unplugged, is closed with a message.
  void Avec_Port(const std::function<void()>& action);
  bool Port_En_Service() const;

  // Tuning.
  void Cat_Yaesu();
  void Cat_FT1000();
  void Cat_Icom(std::string_view adresse);
  void Efface_Params();
  void Envoie_Bloc(std::uint8_t opcode);
  void Attend_Envoi();
  void Prend_Params(const Parametres_CAT& octets);

  bool Page_Prete_ = false;       ///< Sort and filter clicks act.
  bool en_charge_ = false;        ///< A page is awaited or being listed.
  bool adresse_changee_ = false;  ///< Since the load that goes on has begun.
  bool en_accord_ = false;        ///< A tuning is on its way.
  bool temp_ouvert_ = false;      ///< `Temp1.txt` was left open by a load that failed while it wrote it.

  std::string Emetteur_Choisi_;
  std::array<std::uint8_t, 5> Bloc_CAT_{};   ///< Four parameters and the opcode.
  int port_com_ = 1;                         ///< The port that is opened next.
  std::string reglage_port_ = "9600,n,8,1";  ///< Its speed and format; those of most sets, until others are chosen.
};

}  // namespace vorelio
