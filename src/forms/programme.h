#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/controls.h"
#include "forms/entry_state.h"
#include "forms/held_work.h"
#include "forms/settings.h"
#include "forms/station_context.h"
#include "platform/platform.h"

namespace vorelio {

class Fenetre_Principale;

/// One run of the program: what it stands on, the station, the contact being typed, and the open windows. Several runs
/// can live in one process.
class Programme {
 public:
  explicit Programme(const Platform& platform);
  ~Programme();
  Programme(const Programme&) = delete;
  Programme& operator=(const Programme&) = delete;

  const Platform plateforme;
  Contexte_Station contexte;
  Etat_Saisie saisie;
  Reglages reglages;

  // --- Files ---

  Disk& Disque() const { return *disque_; }
  /// The program's directory, `Chemin_Programme`.
  const std::string& Chemin_Programme() const { return plateforme.directory; }
  /// Directory, separator, file name.
  std::string Chemin(std::string_view fichier) const;
  /// The file that a callsign gives its name to: the callsign in its file form and `suite`, for instance
  /// "_Departement.txt". Whatever has been typed for the callsign, the file lies in the program's directory.
  std::string Chemin_De(std::string_view indicatif, std::string_view suite) const;
  /// The same of the current station.
  std::string Chemin_Station(std::string_view suite) const;
  /// The same of the template station.
  std::string Chemin_Modele(std::string_view suite) const;
  /// The log of a station: one file, whatever the case of its ending. ".log" goes before the others, and is the ending
  /// of a log that is still to be made. What has been found is remembered.
  std::string Chemin_Log(std::string_view station) const;
  /// The same of a log that may have come or gone since.
  std::string Cherche_Log(std::string_view station) const;
  /// The same of a station that is being made.
  std::string Nouveau_Log(std::string_view station) const;

  // --- Boxes ---

  void Message(const std::string& texte) const;
  /// Yes or No.
  bool Question(const std::string& texte, Guard garde = Guard::None) const;
  /// OK or Cancel, with the critical sign.
  bool Avertissement(const std::string& texte) const;
  /// Path of a file to read, from the dialog that starts in the program's directory; empty if it was cancelled.
  std::string Choisit_Fichier(const std::string& filtre) const;
  /// The same for a file to write, under the name that is proposed or another.
  std::string Choisit_Nom(const std::string& propose, const std::string& filtre) const;

  // --- Windows ---

  /// The window of that class, made and loaded on first use.
  template <typename F>
  F& Fenetre() {
    if (F* ouverte = Ouverte<F>()) return *ouverte;
    auto neuve = std::make_unique<F>(*this);
    F& fenetre = *neuve;
    Charge(std::move(neuve));
    return fenetre;
  }

  /// The window of that class if it is loaded, else null.
  template <typename F>
  F* Ouverte() const {
    for (const auto& forme : formes_)
      if (auto* trouvee = dynamic_cast<F*>(forme.get())) return trouvee;
    return nullptr;
  }

  /// The main window; run-time error 91 while there is none.
  Fenetre_Principale& Principale() const;

  /// The loaded window of that name, or null.
  Form* Cherche_Fenetre(std::string_view nom) const;

  /// The loaded windows, in the order of their loading.
  std::vector<Form*> Fenetres() const;

  /// The modal window that locks the others, or null.
  Form* Fenetre_Modale() const;

  /// The control that has the focus, or null.
  Control* Focus() const { return focus_; }

  // --- Events ---

  /// The way in for everything that comes from outside: a user's action, a timer, the start. Errors end the program
  /// here at the latest, and nothing is thrown from it.
  void Recoit(const std::function<void()>& action);

  /// Runs an event procedure that the logic itself has raised. It is a boundary of its own: an error in it ends the
  /// program, whatever its caller traps.
  void Evenement(const std::function<void()>& procedure);

  /// Lets waiting events in; leaves by `Fin_Programme` if they end the program.
  void Traite_Evenements();

  /// Serves events until the program ends; never returns.
  [[noreturn]] void Attend_La_Fin();

  /// Ends the program: all windows go, nothing is saved, for everything already is.
  void Termine();
  /// Leaves the running procedure by `Fin_Programme` if the program has ended.
  void Quitte_Si_Termine() const;
  bool Termine_Deja() const { return termine_; }
  /// Whether the event that runs now came while another one still waits: for a box, a window, a long procedure.
  bool En_Attente() const { return profondeur_ > 1; }
  /// Number of the run-time error that ended the program, 0 if none has.
  int Erreur_Fatale() const { return erreur_fatale_; }

 private:
  friend class Form;
  friend class Control;
  friend class Disque_Groupe;
  friend class Tenue;

  void Charge(std::unique_ptr<Form> forme);
  void Decharge(Form& forme);
  void Ramasse();
  void Prend_Focus(Control& controle);
  void Note_Focus(Control& controle);
  void Fin_Sur_Erreur(int numero, const std::string& texte);
  /// Before anybody else gets a turn: what long procedures hold in memory goes to the disk.
  void Cede_La_Main() const;

  mutable std::map<std::string, std::string, std::less<>> logs_;  ///< Paths by station.
  Disk* disque_ = &plateforme.disk;
  std::vector<Tenue*> tenues_;
  std::vector<std::unique_ptr<Form>> formes_;
  std::vector<std::unique_ptr<Form>> quittees_;
  Control* focus_ = nullptr;
  int profondeur_ = 0;
  bool termine_ = false;
  int erreur_fatale_ = 0;
};

}  // namespace vorelio
