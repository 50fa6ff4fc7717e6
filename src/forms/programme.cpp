#include "forms/programme.h"

#include <algorithm>
#include <new>

#include "core/errors.h"
#include "core/text.h"
#include "forms/main_window.h"

namespace vorelio {

Programme::Programme(const Platform& platform) : plateforme(platform), reglages(platform.settings, contexte) {}

Programme::~Programme() {
  for (const auto& forme : formes_) plateforme.windows.Destroyed(*forme);
}

// --- Files ----------------------------------------------------------------------------------------------------------

std::string Programme::Chemin(std::string_view fichier) const {
  return std::string(Chemin_Programme()).append(1, plateforme.separator).append(fichier);
}

std::string Programme::Chemin_De(std::string_view indicatif, std::string_view suite) const {
  return Chemin(Forme_Fichier(indicatif)).append(suite);
}

std::string Programme::Chemin_Station(std::string_view suite) const {
  return Chemin_De(contexte.Station_Indicatif, suite);
}

std::string Programme::Chemin_Modele(std::string_view suite) const { return Chemin_De(kStation_Modele, suite); }

std::string Programme::Chemin_Log(std::string_view station) const {
  const auto place = logs_.find(station);
  return place == logs_.end() ? Cherche_Log(station) : place->second;
}

std::string Programme::Cherche_Log(std::string_view station) const {
  for (const char* fin : {".log", ".Log", ".LOG", ".lOg", ".loG", ".LOg", ".LoG", ".lOG"}) {
    const std::string chemin = Chemin_De(station, fin);
    if (Disque().Exists(chemin)) return logs_[std::string(station)] = chemin;
  }
  logs_.erase(std::string(station));
  return Chemin_De(station, ".log");
}

std::string Programme::Nouveau_Log(std::string_view station) const {
  return logs_[std::string(station)] = Chemin_De(station, ".log");
}

// --- Boxes ----------------------------------------------------------------------------------------------------------

// A box or a dialog waits for the user, and while it waits the program can be ended.
void Programme::Message(const std::string& texte) const {
  Cede_La_Main();
  plateforme.messages.Show(texte);
  Quitte_Si_Termine();
}

bool Programme::Question(const std::string& texte, Guard garde) const {
  Cede_La_Main();
  const bool oui = plateforme.messages.Ask(texte, Buttons::YesNo, Icon::Question, garde);
  Quitte_Si_Termine();
  return oui;
}

bool Programme::Avertissement(const std::string& texte) const {
  Cede_La_Main();
  const bool oui = plateforme.messages.Ask(texte, Buttons::OkCancel, Icon::Critical, Guard::None);
  Quitte_Si_Termine();
  return oui;
}

std::string Programme::Choisit_Fichier(const std::string& filtre) const {
  Cede_La_Main();
  std::string fichier = plateforme.dialogs.Open(Chemin_Programme(), filtre);
  Quitte_Si_Termine();
  return fichier;
}

std::string Programme::Choisit_Nom(const std::string& propose, const std::string& filtre) const {
  Cede_La_Main();
  std::string fichier = plateforme.dialogs.Save(Chemin_Programme(), propose, filtre);
  Quitte_Si_Termine();
  return fichier;
}

// --- Windows --------------------------------------------------------------------------------------------------------

Fenetre_Principale& Programme::Principale() const {
  if (auto* principale = Ouverte<Fenetre_Principale>()) return *principale;
  throw Erreur_Execution(Erreur::Objet_Absent, "Vorelio");
}

Form* Programme::Cherche_Fenetre(std::string_view nom) const {
  for (const auto& forme : formes_)
    if (forme->Name() == nom) return forme.get();
  return nullptr;
}

std::vector<Form*> Programme::Fenetres() const {
  std::vector<Form*> fenetres;
  for (const auto& forme : formes_) fenetres.push_back(forme.get());
  return fenetres;
}

Form* Programme::Fenetre_Modale() const {
  // A window opened from a modal one stands above it: the last one locks.
  for (auto forme = formes_.rbegin(); forme != formes_.rend(); ++forme)
    if ((*forme)->modal_ && (*forme)->visible_) return forme->get();
  return nullptr;
}

void Programme::Charge(std::unique_ptr<Form> forme) {
  Form& fenetre = *forme;
  formes_.push_back(std::move(forme));
  plateforme.windows.Created(fenetre);
  Evenement([&] { fenetre.Form_Load(); });
}

void Programme::Decharge(Form& forme) {
  const auto place =
      std::find_if(formes_.begin(), formes_.end(), [&](const auto& candidate) { return candidate.get() == &forme; });
  if (place == formes_.end()) return;
  plateforme.windows.Destroyed(forme);
  // The window's own procedure may still be running: it goes when nothing runs any more.
  quittees_.push_back(std::move(*place));
  formes_.erase(place);
  if (forme.Main()) {
    Termine();
    throw Fin_Programme{};
  }
  if (focus_ && &focus_->Parent() == &forme) {
    focus_ = nullptr;
    for (const auto& restante : formes_)
      if (restante->Main()) focus_ = restante->active_;
  }
}

void Programme::Ramasse() { quittees_.clear(); }

void Programme::Note_Focus(Control& controle) {
  focus_ = &controle;
  controle.Parent().active_ = &controle;
}

void Programme::Prend_Focus(Control& controle) {
  Note_Focus(controle);
  plateforme.windows.Focus(controle);
}

// --- Events ---------------------------------------------------------------------------------------------------------

void Programme::Recoit(const std::function<void()>& action) {
  if (termine_) return;
  ++profondeur_;
  try {
    Evenement([&] {
      Cede_La_Main();
      action();
    });
  } catch (const Fin_Programme&) {
    // The program has ended; whoever runs the events looks at Termine_Deja().
  }
  if (--profondeur_ == 0) Ramasse();
}

void Programme::Evenement(const std::function<void()>& procedure) {
  try {
    procedure();
  } catch (const Erreur_Execution& erreur) {
    Fin_Sur_Erreur(erreur.Numero(), erreur.Texte());
    throw Fin_Programme{};
  } catch (const std::bad_alloc&) {
    Fin_Sur_Erreur(7, "Erreur d'exécution '7' : Mémoire insuffisante"_t);
    throw Fin_Programme{};
  }
}

void Programme::Traite_Evenements() {
  plateforme.windows.ServeEvents();
  Quitte_Si_Termine();
}

void Programme::Cede_La_Main() const {
  // By place: what writes may have to wait itself, and others begin and end their work meanwhile.
  for (std::size_t i = 0; i < tenues_.size(); ++i) {
    Tenue& tenue = *tenues_[i];
    tenue.Depose();
    tenue.interrompue_ = true;
  }
}

void Programme::Attend_La_Fin() {
  Cede_La_Main();
  for (;;) {
    Quitte_Si_Termine();
    plateforme.windows.WaitForEvent();
  }
}

void Programme::Quitte_Si_Termine() const {
  if (termine_) throw Fin_Programme{};
}

void Programme::Fin_Sur_Erreur(int numero, const std::string& texte) {
  if (termine_) return;
  try {
    Cede_La_Main();
  } catch (const Erreur_Execution&) {
    // The first error is the one to tell.
  }
  // No event may reach the logic any more while the box waits.
  termine_ = true;
  erreur_fatale_ = numero;
  plateforme.messages.Fatal(numero, texte);
  Termine();
}

void Programme::Termine() {
  termine_ = true;
  for (const auto& forme : formes_) {
    forme->visible_ = false;
    plateforme.windows.Changed(*forme);
  }
}

}  // namespace vorelio
