#include <algorithm>
#include <chrono>
#include <thread>

#include "cluster/cluster_settings_windows.h"
#include "cluster/cluster_window.h"
#include "cluster/while_set.h"
#include "core/errors.h"
#include "core/text.h"

namespace vorelio {

namespace {

/// What ends the settings of a port after its speed: no parity, eight bits, one stop bit.
constexpr std::string_view kFormat = ",n,8,1";

/// A port that takes nothing for so long is given up.
constexpr std::chrono::seconds kPatience{2};

}  // namespace

// --- Port -----------------------------------------------------------------------------------------------------------

void Cluster::Lit_Port() {
  const Reglages& reglages = programme_.reglages;
  NumPort.SetCaption(reglages.Station("Port Com", "0"));
  if (NumPort.Caption() == "0") Coche_Port(Mnu_SansCom);
  if (NumPort.Caption() == "1") Coche_Port(Mnu_Com1);
  if (NumPort.Caption() == "2") Coche_Port(Mnu_Com2);
  port_com_ = NumPort.Caption() == "2" ? 2 : 1;
  if (!Port_En_Service()) return;

  const std::string reglage = reglages.Station("Baud", "0");
  if (reglage.size() < kFormat.size()) throw Erreur_Execution(Erreur::Argument_Invalide, "Baud = " + reglage);
  reglage_port_ = reglage;
  DebitPort.SetCaption(reglage.substr(0, reglage.size() - kFormat.size()));
  // 19200 has never been marked at the start.
  for (const MenuItem* debit : {&Mnu_4800, &Mnu_9600, &Mnu_57600})
    if (DebitPort.Caption() == debit->Caption()) Coche_Debit(debit);
  Ouvre_Port();
  Montre_Port();
}

bool Cluster::Port_En_Service() const { return Valeur(NumPort.Caption()) != 0; }

void Cluster::Ouvre_Port() {
  programme_.plateforme.serial.Open(port_com_, programme_.reglages.Commun(Cle_Port(port_com_), ""), reglage_port_);
}

void Cluster::Mnu_SansCom_Click() {
  NumPort.SetCaption("0");
  Coche_Port(Mnu_SansCom);
  programme_.reglages.Ecrit_Station("Port Com", "0");
  Coche_Debit(nullptr);
  DebitPort.SetCaption("0");
  programme_.reglages.Ecrit_Station("Baud", "0");
  programme_.plateforme.serial.Close();
  Montre_Port();
}

void Cluster::Mnu_Com_Click(int numero) {
  const std::string chiffre = std::to_string(numero);
  try {
    programme_.plateforme.serial.Close();
    port_com_ = numero;
    Ouvre_Port();
    programme_.reglages.Ecrit_Station("Port Com", chiffre);
  } catch (const Erreur_Execution&) {
    programme_.plateforme.serial.Close();
    Montre_Port();
    programme_.Message("Le port com" + chiffre + " n'existe pas");
    return;
  }
  Coche_Port(numero == 1 ? Mnu_Com1 : Mnu_Com2);
  NumPort.SetCaption(chiffre);
  Montre_Port();
}

void Cluster::Mnu_Debit_Click(const MenuItem& debit) {
  reglage_port_ = debit.Caption() + std::string(kFormat);
  Coche_Debit(&debit);
  DebitPort.SetCaption(debit.Caption());
  programme_.reglages.Ecrit_Station("Baud", reglage_port_);
  Avec_Port([this] {
    if (programme_.plateforme.serial.IsOpen()) programme_.plateforme.serial.Configure(reglage_port_);
  });
}

void Cluster::Ports_Changes() {
  if (Port_En_Service()) Mnu_Com_Click(NumPort.Caption() == "2" ? 2 : 1);
}

void Cluster::Coche_Port(const MenuItem& choix) {
  for (MenuItem* entree : {&Mnu_SansCom, &Mnu_Com1, &Mnu_Com2}) entree->SetChecked(entree == &choix);
}

void Cluster::Coche_Debit(const MenuItem* choix) {
  for (MenuItem* entree : {&Mnu_4800, &Mnu_9600, &Mnu_19200, &Mnu_57600}) entree->SetChecked(entree == choix);
}

void Cluster::Montre_Port() {
  SerialService& port = programme_.plateforme.serial;
  Nom_Port.SetCaption(port.IsOpen() ? Peripherique(programme_, port_com_) : Port_En_Service() ? "fermé"_t : "");
}

void Cluster::Avec_Port(const std::function<void()>& action) {
  try {
    action();
  } catch (const Erreur_Execution& erreur) {
    if (erreur.Genre() != Erreur::Peripherique) throw;
    // The settings stay: a cable that fell out is no reason to choose port and speed anew.
    programme_.plateforme.serial.Close();
    Montre_Port();
    programme_.Message("Le port com"_t + NumPort.Caption() +
                       " ne répond plus, il est fermé.\r\nVérifiez son branchement, puis choisissez-le de nouveau "
                       "dans le menu Port Com."_t);
  }
}

// --- Tuning ---------------------------------------------------------------------------------------------------------

void Cluster::Envoie_Qrg() {
  const Modele_Transceiver* modele = Cherche_Modele(Emetteur_Choisi_);
  if (!modele) return;
  const Pendant accord(en_accord_);
  switch (modele->famille) {
    case Famille_CAT::Yaesu: return Cat_Yaesu();
    case Famille_CAT::FT1000: return Cat_FT1000();
    case Famille_CAT::Icom: return Cat_Icom(modele->adresse);
  }
}

// Events are served between the blocks: the line, the order and the block itself are looked at anew for each.

void Cluster::Cat_Yaesu() {
  Efface_Params();
  Envoie_Bloc(0);  // CAT on.
  const std::string frequence = Texte_Qrg(Ligne_Cluster, Colonne_Qrg(Famille_CAT::Yaesu, Tri_Choisi()));
  Prend_Params(Qrg_Bcd(Nombre_Entier(frequence)));
  Envoie_Bloc(1);
  Efface_Params();
  Envoie_Bloc(7);  // Mode: LSB, on every band.
  Efface_Params();
  Envoie_Bloc(128);  // CAT off.
}

void Cluster::Cat_FT1000() {
  std::string frequence = Texte_Qrg(Ligne_Cluster, Colonne_Qrg(Famille_CAT::FT1000, Tri_Choisi()));
  Prend_Params(Qrg_Bcd_Inverse(frequence));
  Envoie_Bloc(10);
  Efface_Params();
  const int longueur = Chiffres_Du_Nombre(frequence);
  if (longueur == 7 || longueur == 8) Bloc_CAT_[3] = 1;  // USB.
  Envoie_Bloc(12);
}

void Cluster::Cat_Icom(std::string_view adresse) {
  const std::string frequence = Texte_Qrg(Ligne_Cluster, Colonne_Qrg(Famille_CAT::Icom, Tri_Choisi()));
  Avec_Port([&] {
    for (const std::string& trame : Trames_Icom(adresse, frequence)) programme_.plateforme.serial.Write(trame);
  });
}

void Cluster::Efface_Params() { Prend_Params({}); }

void Cluster::Prend_Params(const Parametres_CAT& octets) { std::copy(octets.begin(), octets.end(), Bloc_CAT_.begin()); }

void Cluster::Envoie_Bloc(std::uint8_t opcode) {
  SerialService& port = programme_.plateforme.serial;
  Avec_Port([&] {
    port.ClearInput();
    if (!port.IsOpen()) return;
    Bloc_CAT_[4] = opcode;
    port.Write(std::string(Bloc_CAT_.begin(), Bloc_CAT_.end()));
    Attend_Envoi();
  });
}

void Cluster::Attend_Envoi() {
  using Horloge = std::chrono::steady_clock;
  SerialService& port = programme_.plateforme.serial;
  Horloge::time_point bouge = Horloge::now();
  int avant = 0;
  for (;;) {
    // The window may have been closed meanwhile, or another port chosen.
    const int reste = port.IsOpen() ? port.Pending() : 0;
    if (reste == 0) return;
    if (reste != avant) bouge = Horloge::now();
    if (Horloge::now() - bouge > kPatience) throw Erreur_Execution(Erreur::Peripherique);
    avant = reste;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    programme_.Traite_Evenements();
  }
}

}  // namespace vorelio
