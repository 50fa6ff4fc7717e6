#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace vorelio {

/// Numbers of the run-time errors, as the error box shows them.
enum class Erreur : int {
  Argument_Invalide = 5,
  Depassement = 6,
  Indice_Hors_Limites = 9,
  Division_Par_Zero = 11,
  Type_Incompatible = 13,
  Fichier_Introuvable = 53,
  Fichier_Deja_Ouvert = 55,
  Peripherique = 57,
  Disque_Plein = 61,
  Fin_De_Fichier = 62,
  Peripherique_Absent = 68,
  Permission_Refusee = 70,
  Disque_Non_Pret = 71,
  Acces_Chemin = 75,
  Chemin_Introuvable = 76,
  Objet_Absent = 91,
};

/// A run-time error of the program's logic. What a procedure doesn't trap ends the program at the next event boundary
/// with the error box.
class Erreur_Execution : public std::exception {
 public:
  /// `precision` says what it was about, for instance the file's name; it may be empty.
  explicit Erreur_Execution(Erreur erreur, std::string_view precision = {});

  int Numero() const { return static_cast<int>(erreur_); }
  Erreur Genre() const { return erreur_; }

  /// "Erreur d'exécution '53' : Fichier introuvable", and what it was about on a line below.
  const std::string& Texte() const { return texte_; }

  const char* what() const noexcept override { return texte_.c_str(); }

 private:
  Erreur erreur_;
  std::string texte_;
};

/// Thrown to leave from the depth of a procedure when the program has been ended by a window. No trap of a procedure
/// catches it.
class Fin_Programme {};

}  // namespace vorelio
