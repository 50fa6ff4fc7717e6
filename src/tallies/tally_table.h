#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vorelio {

/// The lines of a tally file in memory, with the first line of each key at hand.
class Table_Pointage {
 public:
  /// The key of a line, of five characters at most.
  using Cle_De = std::string_view (*)(std::string_view ligne);

  Table_Pointage(std::string_view texte, Cle_De cle_de);

  /// Index of the first line with that key, -1 if there is none.
  int Cherche(std::string_view cle) const;
  /// Index of the first line whose key `texte` begins with, -1 if there is none; keys have up to five characters.
  int Cherche_Debut(std::string_view texte) const;

  /// Raises the code in `colonne` of a line to a QSL state: the higher of both stays, a state without a character
  /// changes nothing. `premiere` is the first column of codes.
  void Monte_Code(int indice, int colonne, std::string_view etat, int premiere);

  /// Drops that line and all below.
  void Coupe_A_Partir(int indice);

  /// The lines before `fin`, each ended by CR LF.
  std::string Texte_Avant(int fin) const;
  std::string Texte() const { return Texte_Avant(static_cast<int>(lignes_.size())); }

 private:
  std::vector<std::string> lignes_;
  std::unordered_map<std::uint64_t, int> premiere_;
};

}  // namespace vorelio
