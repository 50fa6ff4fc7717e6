#pragma once

#include <string>
#include <string_view>

#include "core/text.h"

/// The one record of a contact: `Ligne_Log`, a line of the log of exactly 199 characters. `Ligne_Liste` is the same
/// with the contact's number in front, right-aligned in five columns, and a blank.
namespace vorelio {

/// A field of the log line: its 1-based column in the file, its width, and the blanks that follow it.
struct Champ {
  int colonne;
  int largeur;
  int ecart;
};

/// A list column is the file's column plus this.
inline constexpr int kColonnes_Numero = 6;
inline constexpr int kLargeur_Ligne = 199;

namespace champs {
inline constexpr Champ Date_A{1, 8, 2};
inline constexpr Champ Indicatif_A{11, 12, 0};
inline constexpr Champ Debut_A{23, 5, 2};
inline constexpr Champ Fin_A{30, 5, 2};
inline constexpr Champ Depart_A{37, 3, 2};
inline constexpr Champ Locator_A{42, 6, 2};
inline constexpr Champ Bande_A{50, 8, 2};
inline constexpr Champ Mode_A{60, 7, 2};
inline constexpr Champ RSTE_A{69, 8, 2};
inline constexpr Champ RSTR_A{79, 8, 2};
inline constexpr Champ QTH_A{89, 20, 2};
inline constexpr Champ Prenom_A{111, 15, 2};
inline constexpr Champ Etat_QSL{135, 1, 1};
inline constexpr Champ QSLE_A{137, 8, 1};
inline constexpr Champ QSLR_A{146, 8, 1};
inline constexpr Champ Distance_A{155, 5, 1};
inline constexpr Champ Azimut_A{161, 3, 1};
inline constexpr Champ Activ_A{165, 2, 2};
inline constexpr Champ Remarques_A{169, 30, 0};

/// Reserved columns, QSL state and both QSL dates: what an edit carries along without looking at it.
inline constexpr Champ Bloc_QSL{128, 27, 0};

/// What of the department is compared and tallied: no department uses the third character.
inline constexpr Champ Depart_Court{37, 2, 0};
}  // namespace champs

/// A field of a `Ligne_Log` at its full width, blanks included. The results here look into `ligne`.
inline std::string_view Champ_Log(std::string_view ligne, const Champ& champ) {
  return Coupe(ligne, champ.colonne, champ.largeur);
}

/// The same of a `Ligne_Liste`.
inline std::string_view Champ_Liste(std::string_view ligne, const Champ& champ) {
  return Coupe(ligne, champ.colonne + kColonnes_Numero, champ.largeur);
}

/// A field of a `Ligne_Log`, trimmed.
inline std::string_view Lit_Log(std::string_view ligne, const Champ& champ) { return Rogne(Champ_Log(ligne, champ)); }

/// A field of a `Ligne_Liste`, trimmed.
inline std::string_view Lit_Liste(std::string_view ligne, const Champ& champ) {
  return Rogne(Champ_Liste(ligne, champ));
}

/// The 199 characters of a `Ligne_Liste` after its number.
inline std::string_view Partie_Log(std::string_view ligne_liste) {
  return Coupe(ligne_liste, kColonnes_Numero + 1, kLargeur_Ligne);
}

/// What a log line is made of, as texts of the fields.
struct Champs_QSO {
  std::string Date_A, Indicatif_A, Debut_A, Fin_A, Depart_A, Locator_A, Bande_A, Mode_A, RSTE_A, RSTR_A, QTH_A,
      Prenom_A;
  std::string Bloc_QSL = QSL_Nouvelle();  ///< `champs::Bloc_QSL`, or of it the columns from the state on.
  std::string Distance_A, Azimut_A, Activ_A, Remarques_A;

  /// The QSL columns of a new contact, without the reserved ones in front: state "1", no date.
  static std::string QSL_Nouvelle();
};

/// Builds a `Ligne_Log`. A field beyond its width plus gap is run-time error 5.
std::string Construit_Ligne(const Champs_QSO& qso);

/// The number column of a `Ligne_Liste`: five wide, and a blank. A number above 99999 is run-time error 5.
std::string Colonne_Numero(int numero);

}  // namespace vorelio
