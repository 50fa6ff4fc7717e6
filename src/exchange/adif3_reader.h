#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// ADIF 3 (ADI), from a file's bytes to records of fields: tags in any case, lengths honoured, any white space between
/// fields, header or none.
namespace vorelio {

/// A field; both parts look into the file.
struct Champ_ADIF3 {
  std::string_view nom;     ///< In the case of the file.
  std::string_view valeur;  ///< The bytes of the value.
};

/// What the names of this program's own fields begin with.
inline constexpr std::string_view kPrefixe_Propre = "APP_VORELIO_";

/// The fields of one record. Names are compared in any case, and asked for in capitals.
class Enregistrement_ADIF {
 public:
  void Vide();
  void Ajoute(const Champ_ADIF3& champ);
  bool Est_Vide() const { return champs_.empty(); }

  /// Whether a field of this program's own is among them.
  bool Propre() const { return propre_; }

  /// The last field of that name, nothing without one.
  const Champ_ADIF3* Cherche(std::string_view nom) const;

  /// Its value without white space around; empty without one.
  std::string_view Valeur_De(std::string_view nom) const;

 private:
  std::vector<Champ_ADIF3> champs_;
  bool propre_ = false;
};

/// Gives the records of a file one after another.
class Lecteur_ADIF3 {
 public:
  /// Lengths that don't end before a tag or white space are tried as characters, in a file that is UTF-8.
  Lecteur_ADIF3(std::string_view octets, bool utf8) : octets_(octets), utf8_(utf8) {}

  /// Reads the next record; false at the end. One that isn't ended by <EOR> counts.
  bool Suivant();

  const Enregistrement_ADIF& Champs() const { return champs_; }
  const Enregistrement_ADIF& Champs_Entete() const { return champs_entete_; }
  std::string_view Brut() const { return octets_.substr(debut_, place_ - debut_); }
  std::string_view Entete() const { return entete_; }
  std::size_t Debut() const { return debut_; }  ///< Place of the record's first byte.
  std::size_t Place() const { return place_; }  ///< Behind what has been read.
  bool Fin_Vue() const { return fin_vue_; }     ///< Whether an <EOH> or <EOR> has been met.

 private:
  std::size_t Fin_Valeur(std::size_t debut, std::size_t longueur) const;
  bool Bornee(std::size_t fin) const;

  std::string_view octets_;
  bool utf8_;
  std::size_t place_ = 0, debut_ = 0;
  bool fin_vue_ = false;
  std::string_view entete_;
  Enregistrement_ADIF champs_, champs_entete_;
};

}  // namespace vorelio
