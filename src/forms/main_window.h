#pragma once

#include <string>
#include <string_view>

#include "forms/controls.h"

namespace vorelio {

/// The cells of a grid or a map, 0 to 99.
using Cellules = ControlArray<TextField>;

/// The main window as every other part of the program sees it: the log that it lists, the grid that it paints, its
/// status line, and what a change of station or an entered card asks of it.
class Fenetre_Principale : public Form {
 public:
  using Form::Form;

  bool Main() const override { return true; }

  // --- Log ---
  /// `Liste_QSO`: a `Ligne_Liste` per contact, in the order of the file.
  virtual ListBox& Journal() = 0;
  /// "QSO numéro " and the number in the frame of the entry form.
  virtual void Annonce_Numero(int numero) = 0;
  /// After cards have been entered: the grid in department mode, the log read anew, its last line selected.
  virtual void Reprend_Apres_QSL() = 0;

  // --- Status line ---
  virtual void Dit(std::string_view texte) = 0;

  // --- Grid ---
  virtual const Cellules& Grille() const = 0;
  /// The band and the field of squares that the lists over the grid show.
  virtual const std::string& Bande_Choisie() const = 0;
  virtual const std::string& Champ_Choisi() const = 0;
  /// Paints the departments of `Bande_Grille`, and tells their count over the grid.
  virtual void Peint_Departements() = 0;
  /// Tells the count of departments over the grid.
  virtual void Legende_Departements() = 0;
  /// Paints what the grid shows, departments or squares, and tells their count.
  virtual void Repeint_Grille() = 0;

  // --- Station ---
  /// The callsign as it is shown, with "/".
  virtual const std::string& Indicatif_Affiche() const = 0;
  /// Shows the station of the context.
  virtual void Affiche_Station() = 0;
  /// Selects the saved band and mode of the station.
  virtual void Charge_Bande_Mode() = 0;
  /// Fills the list of activities with those of the station and selects the saved one. The defaults are those of an
  /// absent count and an absent name.
  virtual void Charge_Activites(int defaut_nombre, std::string_view defaut_nom = "err1") = 0;
  /// Checks the date and clock options of the station.
  virtual void Montre_Options() = 0;

  // --- Entry ---
  /// Whether contacts are entered in UTC, not in local time.
  virtual bool Saisie_En_UTC() const = 0;
  /// The focus to the first field of the chain.
  virtual void Attend_Bande() = 0;
  /// The field of the callsign.
  virtual TextField& Champ_Indicatif() = 0;

  // --- Menus ---
  /// Whether an import can be started.
  virtual void Permet_Imports(bool permis) = 0;
};

}  // namespace vorelio
