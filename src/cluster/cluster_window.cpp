#include "cluster/cluster_window.h"

#include <utility>
#include <vector>

#include "cluster/cluster_settings_windows.h"
#include "cluster/memory_window.h"
#include "cluster/while_set.h"
#include "core/errors.h"
#include "core/text.h"
#include "forms/clock_text.h"
#include "tallies/prefix_tally.h"

namespace vorelio {

using namespace Sous_Programmes;

namespace {

constexpr int kDelai_Page_s = 60;
constexpr const char* kFichier_Page = "Cluster1.txt";
constexpr const char* kFichier_Temporaire = "Temp1.txt";

/// Thrown to leave a load whose window has been closed meanwhile.
struct Fenetre_Fermee {};

/// Whether a write failed before the file was open.
bool Jamais_Ouvert(const Erreur_Execution& erreur) {
  return erreur.Genre() == Erreur::Permission_Refusee || erreur.Genre() == Erreur::Acces_Chemin ||
         erreur.Genre() == Erreur::Chemin_Introuvable;
}

}  // namespace

Cluster::Cluster(Programme& programme) : Form(programme, "Cluster", "DX Cluster") {
  Patientez.SetEnabled(false);
  Afficher.Click = [this] { Charge_Cluster(); };
  Timer2.Tick = [this] { Timer2_Timer(); };
  Indicatif.KeyPress = [this](int& touche) { Indicatif_KeyPress(touche); };
  for (OptionButton* tri : {&Option1, &Option2, &Option3}) tri->Click = [this] { Tri_Ou_Filtre_Click(); };
  for (CheckBox* filtre : {&Check1, &Check2}) filtre->Click = [this] { Tri_Ou_Filtre_Click(); };
  Liste_Stations.Click = [this] { Liste_Stations_Click(); };
  Memoriser.Click = [this] { Memoriser_Click(); };
  Voir_Mem.Click = [this] { Voir_Mem_Click(); };
  Emetteur.Click = [this] {
    programme_.reglages.Ecrit_Station("Transceiver", std::to_string(Emetteur.ListIndex()));
    Emetteur_Choisi_ = Emetteur.Text();
  };
  Mnu_SansCom.Click = [this] { Mnu_SansCom_Click(); };
  Mnu_Com1.Click = [this] { Mnu_Com_Click(1); };
  Mnu_Com2.Click = [this] { Mnu_Com_Click(2); };
  for (MenuItem* debit : {&Mnu_4800, &Mnu_9600, &Mnu_19200, &Mnu_57600})
    debit->Click = [this, debit] { Mnu_Debit_Click(*debit); };
  Mnu_Ports.Click = [this] { programme_.Fenetre<Ports_Serie>().Show(); };
  Mnu_Adresse.Click = [this] { programme_.Fenetre<Adresse_Cluster>().Show(); };
}

void Cluster::Form_Load() {
  Centre();
  for (const Bande_Cluster& bande : kBandes_Cluster) Bande_CL.AddItem(bande.nom);
  for (std::size_t i = 0; i < kModeles_Offerts; ++i) Emetteur.AddItem(kModeles[i].nom);
  Bande_CL.SetListIndex(Nombre_Entier(Texte_Nombre(Valeur(programme_.reglages.Station("bande Cluster", "0")))));
  // The labels keep a text of their own under the same key; once one stands there, this fails.
  Emetteur.SetListIndex(programme_.reglages.Nombre_Station("Transceiver", 2));
  Lit_Port();
  Montre_Site();
  Timer2.SetEnabled(true);
  Page_Prete_ = true;
}

void Cluster::Form_Unload() {
  Timer2.SetEnabled(false);
  if (Port_En_Service()) programme_.plateforme.serial.Close();
  for (const char* nom : {"Memoire_CL", "Adresse_Cluster", "Ports_Serie"})
    if (Form* fenetre = programme_.Cherche_Fenetre(nom)) fenetre->Unload();
}

// --- What asks for a page -------------------------------------------------------------------------------------------

void Cluster::Timer2_Timer() {
  // A page can take a minute, and whatever this tick has come into, a box or a rebuild, would wait for it. A tuning
  // takes a moment only.
  if (programme_.En_Attente() && !en_accord_) return;
  Charge_Cluster();
}

void Cluster::Indicatif_KeyPress(int& touche) {
  touche = Touche_Majuscule(touche);
  if (touche != kEntree) return;
  if (Indicatif.Text().empty()) return programme_.Message("Entrez un indicatif");
  Charge_Cluster();
}

void Cluster::Tri_Ou_Filtre_Click() {
  if (!Page_Prete_) return;
  Page_Prete_ = false;
  // The lines kept there have the columns of the order before.
  if (auto* memoire = programme_.Ouverte<Memoire_CL>()) memoire->Mem_Cluster.ClearItems();
  Charge_Cluster();
}

void Cluster::Adresse_Changee() {
  Montre_Site();
  adresse_changee_ = en_charge_;
  if (en_charge_) return;
  Afficher.SetEnabled(true);
  Patientez.SetEnabled(false);
  Timer2.SetEnabled(true);
}

void Cluster::Montre_Site() {
  const std::string adresse = Adresse_Complete(programme_.reglages.Commun(kCle_Adresse, ""));
  Site.SetCaption(adresse.empty() ? "Aucun site : menu Site, Adresse du site…"_t : adresse);
}

// --- The load -------------------------------------------------------------------------------------------------------

Tri Cluster::Tri_Choisi() const { return Option2.Set() ? Tri::Indicatif : Option3.Set() ? Tri::QRG : Tri::QTR; }

void Cluster::Charge_Cluster() {
  // Events are served while a page is awaited and while a sound plays.
  if (en_charge_) return;
  bool listee = false;
  try {
    const Pendant charge(en_charge_);
    listee = Charge_Page();
  } catch (const Fenetre_Fermee&) {
    return;
  }
  // A load of the address before may have failed meanwhile: the new one is to be tried.
  if (adresse_changee_) Adresse_Changee();
  if (listee) Choisit_Ligne();
}

bool Cluster::Charge_Page() {
  try {
    do {
      Liste_Stations.SetFocus();
      Timer2.SetEnabled(false);
      Afficher.SetEnabled(false);
      Patientez.SetEnabled(true);
      programme_.reglages.Ecrit_Station("bande Cluster", std::to_string(Bande_CL.ListIndex()));
      std::string page = Demande_Page();
      if (page.empty()) {
        Annonce_Echec("ringin.wav");
        Afficher.SetEnabled(true);
        Patientez.SetEnabled(false);
        return false;
      }
      Page_Prete_ = true;
      QTR.SetCaption(Heure_UTC(programme_).substr(0, 5) + " TU");
      Liste_Stations.ClearItems();
      Liste_Page(Reecrit_Page(std::move(page)));
      // A sort or filter click while the rows came in has left the list in two orders: once more.
    } while (!Page_Prete_);
  } catch (const Erreur_Execution&) {
    // Only this is done: the button and the timer stay locked, and the list keeps what it has got.
    Reste_Ouverte();
    Annonce_Echec("tada.wav");
    return false;
  }
  Afficher.SetEnabled(true);
  Timer2.SetEnabled(true);
  Patientez.SetEnabled(false);
  return true;
}

/// The page in capitals, empty where the site has sent an empty one. No answer is run-time error 71, and so is a site
/// without an address: a path alone is no URL.
std::string Cluster::Demande_Page() {
  const std::string adresse = Adresse_Complete(programme_.reglages.Commun(kCle_Adresse, ""));
  const std::string url = adresse + Chemin_De_Page(Bande_CL.ListIndex());
  std::string page = programme_.plateforme.pages.Fetch(url, kDelai_Page_s, [this] { return Abandonnee(); });
  Reste_Ouverte();
  return Majuscules(page);
}

/// Brings the page through its two files, in which its line ends become those of a file.
std::string Cluster::Reecrit_Page(std::string page) {
  Disk& disque = programme_.Disque();
  const std::string fichier = programme_.Chemin(kFichier_Page), temporaire = programme_.Chemin(kFichier_Temporaire);
  disque.WriteAll(fichier, page.append(kFin_De_Ligne));
  page = Premiere_Ligne(disque.ReadAll(fichier));
  if (temp_ouvert_) throw Erreur_Execution(Erreur::Fichier_Deja_Ouvert, temporaire);
  try {
    disque.WriteAll(temporaire, Fins_De_Ligne(page));
  } catch (const Erreur_Execution& erreur) {
    temp_ouvert_ = !Jamais_Ouvert(erreur);
    throw;
  }
  disque.Copy(temporaire, fichier);
  return disque.ReadAll(fichier);
}

void Cluster::Liste_Page(const std::string& texte) {
  std::vector<std::string> lignes;
  const auto depose = [&] { Liste_Stations.AddItems(std::exchange(lignes, {})); };
  try {
    Lecteur_Spots lecteur(texte);
    while (const auto spot = lecteur.Suivant()) {
      Label11.SetCaption(Entete_Liste(Tri_Choisi()));
      const std::string ligne = Ligne_De_Liste(*spot, Tri_Choisi());
      const auto retient = [&] {
        if (Check3.Checked()) {
          depose();
          Joue_Son(programme_.Chemin("ringout.wav"));
        }
        lignes.push_back(ligne);
      };
      const bool francaises = Check1.Checked(), prefixe = Check2.Checked();
      if (francaises && Indicatif_Francais(spot->DX)) retient();
      if (prefixe && spot->DX.starts_with(Majuscules(Indicatif.Text()))) retient();
      if (!francaises && !prefixe) lignes.push_back(ligne);
    }
  } catch (const Erreur_Execution&) {
    depose();
    throw;
  }
  depose();
}

void Cluster::Choisit_Ligne() {
  const int nombre = Liste_Stations.Count();
  if (nombre > 0) Liste_Stations.SetListIndex(Tri_Choisi() == Tri::QTR ? nombre - 1 : 0);
}

void Cluster::Joue_Son(const std::string& chemin) {
  programme_.plateforme.sounds.Play(chemin, [this] { return Abandonnee(); });
  Reste_Ouverte();
}

void Cluster::Annonce_Echec(const char* son) {
  Joue_Son(programme_.Chemin(son));
  programme_.Message("Pas de reponse du site vérifiez votre liaison internet\r\n"_t + Blancs(12) +
                     "Appuyez de nouveau sur Afficher");
  Reste_Ouverte();
}

void Cluster::Reste_Ouverte() const {
  programme_.Quitte_Si_Termine();
  if (Unloaded()) throw Fenetre_Fermee{};
}

// --- Spots ----------------------------------------------------------------------------------------------------------

void Cluster::Liste_Stations_Click() {
  Ligne_Cluster = Liste_Stations.Text();
  if (Port_En_Service()) Envoie_Qrg();
}

void Cluster::Memoriser_Click() {
  Ligne_Cluster = Liste_Stations.Text();
  programme_.Fenetre<Memoire_CL>().Mem_Cluster.AddItem(Ligne_Cluster);
}

void Cluster::Voir_Mem_Click() {
  auto& memoire = programme_.Fenetre<Memoire_CL>();
  memoire.Show();
  memoire.Label3.SetCaption(Entete_Memoire(Tri_Choisi()));
}

}  // namespace vorelio
