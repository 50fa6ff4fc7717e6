#pragma once

#include <array>
#include <string>
#include <string_view>

/// The five text lines of a QSL label. Labels are centred with blanks in a fixed-pitch font, so a line is a text with
/// its margins.
namespace vorelio {

/// What a contact's label tells of it, without the blanks around. The texts look into the list line.
struct Contact_Etiquette {
  std::string_view date, heure, indicatif, report, mode, bande, reference;
};

/// Cuts a `Ligne_Liste`; an empty line gives empty texts.
Contact_Etiquette Lit_Contact(std::string_view ligne_liste);

/// What all labels of a run have in common.
struct Textes_Etiquette {
  std::string station;  ///< With "_" for "/", as it is printed.
  std::string emetteur;
  std::string antenne;
};

enum class Type_Etiquette { Activation, QSO };
enum class Cote { Gauche, Droite };

/// How a sheet sets the first line: its width in characters, how many of them the fixed words of a right label count
/// for, and the blanks between the two labels.
struct Titre_Etiquette {
  int largeur;
  int mots_droite;
  int ecart;
};

using Lignes_Etiquette = std::array<std::string, 5>;

/// The lines of a label, margins included, those of a left one with the blanks up to its right neighbour. A text that
/// is too long for its line is run-time error 5.
Lignes_Etiquette Compose_Etiquette(const Contact_Etiquette& contact, const Textes_Etiquette& textes,
                                   Type_Etiquette type, Cote cote, const Titre_Etiquette& titre);

}  // namespace vorelio
