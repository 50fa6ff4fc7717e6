#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Text as the station's files hold it: one byte a character, Windows-1252.
/// Every width and column of the program counts characters, so a text must never be anything else inside.
namespace vorelio {

// --- Character set ---------------------------------------------------------------------------------------------------

/// The Windows-1252 byte of a Unicode code point, or nothing if the set has none.
/// The five bytes that Windows leaves unassigned stand for the control characters of the same number.
constexpr std::optional<char> Octet_1252(char32_t point);

/// The Unicode code point of a Windows-1252 byte.
constexpr char32_t Point_1252(char octet);

namespace detail {

inline constexpr char32_t kPoints_80_9F[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                               0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                               0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                               0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// Reads one UTF-8 character at `place` and moves after it; a broken sequence gives U+FFFD and moves by one.
constexpr char32_t Point_Suivant(std::string_view utf8, std::size_t& place) {
  constexpr char32_t kCasse = 0xFFFD;
  const auto tete = static_cast<unsigned char>(utf8[place++]);
  if (tete < 0x80) return tete;
  const int suite = tete >= 0xF0 && tete < 0xF5   ? 3
                    : tete >= 0xE0 && tete < 0xF0 ? 2
                    : tete >= 0xC2 && tete < 0xE0 ? 1
                                                  : 0;
  if (suite == 0 || place + static_cast<std::size_t>(suite) > utf8.size()) return kCasse;
  char32_t point = tete & (0x3FU >> suite);
  for (int i = 0; i < suite; ++i) {
    const auto octet = static_cast<unsigned char>(utf8[place + static_cast<std::size_t>(i)]);
    if ((octet & 0xC0) != 0x80) return kCasse;
    point = point << 6 | (octet & 0x3FU);
  }
  const bool trop_court = (suite == 2 && point < 0x800) || (suite == 3 && point < 0x10000);
  if (trop_court || (point >= 0xD800 && point < 0xE000) || point > 0x10FFFF) return kCasse;
  place += static_cast<std::size_t>(suite);
  return point;
}

/// A literal of the sources, converted while compiling; a character outside Windows-1252 doesn't compile.
template <std::size_t N>
struct Litteral {
  char octets[N] = {};
  std::size_t taille = 0;

  // NOLINTNEXTLINE(google-explicit-constructor): the literal operator needs the implicit form.
  consteval Litteral(const char (&utf8)[N]) {
    const std::string_view texte(utf8, N - 1);
    for (std::size_t place = 0; place < texte.size();)
      octets[taille++] = Octet_1252(Point_Suivant(texte, place)).value();
  }
};

}  // namespace detail

constexpr std::optional<char> Octet_1252(char32_t point) {
  if (point < 0x80 || (point >= 0xA0 && point < 0x100)) return static_cast<char>(point);
  for (int i = 0; i < 32; ++i)
    if (detail::kPoints_80_9F[i] == point) return static_cast<char>(0x80 + i);
  return std::nullopt;
}

constexpr char32_t Point_1252(char octet) {
  const auto nombre = static_cast<unsigned char>(octet);
  return nombre >= 0x80 && nombre < 0xA0 ? detail::kPoints_80_9F[nombre - 0x80] : nombre;
}

inline namespace litteraux {
/// "Départements"_t: the text in Windows-1252.
template <detail::Litteral L>
std::string operator""_t() {
  return std::string(L.octets, L.taille);
}
}  // namespace litteraux

/// UTF-8 to the program's text; what the set cannot hold becomes "?". Nothing fails.
std::string De_Utf8(std::string_view utf8);

/// UTF-8 to the program's text, or nothing if one character doesn't fit: for what is typed.
std::optional<std::string> De_Utf8_Exact(std::string_view utf8);

/// The program's text to UTF-8.
std::string Vers_Utf8(std::string_view texte);

// --- Columns --------------------------------------------------------------------------------------------------------

/// The `largeur` characters from the 1-based `colonne`; past the end, what is there. The result looks into `texte`.
/// A column below 1 is run-time error 5.
std::string_view Coupe(std::string_view texte, int colonne, int largeur);

/// All from the 1-based `colonne` to the end.
std::string_view Coupe(std::string_view texte, int colonne);

/// The last `largeur` characters, or the whole text if it is shorter.
std::string_view Fin(std::string_view texte, int largeur);

/// Without the blanks at both ends; blanks only, no tabs. The result looks into `texte`.
std::string_view Rogne(std::string_view texte);

/// Without the blanks in front.
std::string_view Rogne_Gauche(std::string_view texte);

// A view into a temporary would dangle.
std::string_view Coupe(std::string&&, int, int) = delete;
std::string_view Coupe(std::string&&, int) = delete;
std::string_view Fin(std::string&&, int) = delete;
std::string_view Rogne(std::string&&) = delete;
std::string_view Rogne_Gauche(std::string&&) = delete;

/// `nombre` blanks; a negative count is run-time error 5.
std::string Blancs(int nombre);

/// The text, filled with blanks to `largeur` plus `ecart`. A text that is longer than the width uses the gap;
/// beyond it the count of blanks turns negative: run-time error 5.
std::string Complete(std::string_view texte, int largeur, int ecart = 0);
/// Appends the same to `ligne`.
void Ajoute_Complete(std::string& ligne, std::string_view texte, int largeur, int ecart = 0);

/// The text with blanks in front to `largeur`; longer is run-time error 5.
std::string Complete_Gauche(std::string_view texte, int largeur);

// --- Case -----------------------------------------------------------------------------------------------------------

/// Upper case over the whole character set, accented letters included.
std::string Majuscules(std::string_view texte);

/// A text as a part of a file's name: "_" for each separator and control character, and for a point in front. A
/// callsign such as F6ABC/P has its files under F6ABC_P.
std::string Forme_Fichier(std::string_view texte);

/// The capital of a typed letter a to z; accented letters and all else stay as they are.
constexpr int Touche_Majuscule(int touche) { return touche >= 97 && touche <= 122 ? touche - 32 : touche; }

// --- Numbers --------------------------------------------------------------------------------------------------------

/// The number at the head of a text: leading blanks skipped, as far as it reads as a number, else 0.
double Valeur(std::string_view texte);

/// The number that the whole text is; anything else is run-time error 13.
double Nombre(std::string_view texte);

/// The same, rounded to a whole number (halves to even); outside 32 bits is run-time error 6.
int Nombre_Entier(std::string_view texte);

/// A number as text, without a blank in front.
std::string Texte_Nombre(double nombre);

/// A number as text, with a blank in front where the sign would stand.
std::string Texte_Nombre_Blanc(double nombre);

/// How many there are of something: "0 ligne", "1 ligne", "2 lignes".
std::string Compte(std::size_t nombre, std::string_view un, std::string_view plusieurs);

/// A number from 0 to 99 as two digits.
std::string Deux_Chiffres(int nombre);

/// The text of a Boolean in the settings, "True" or "False"; an unknown text is not true.
std::string Texte_Booleen(bool valeur);
bool Booleen(std::string_view texte);

// --- Lines ----------------------------------------------------------------------------------------------------------

/// What ends every line that is written.
inline constexpr std::string_view kFin_De_Ligne = "\r\n";

/// The lines of a file's text, one after another, without their ends. A line ends at LF, a CR before it belongs to
/// the end; the last line may lack it. The text must outlive the reader.
class Lecteur_Lignes {
 public:
  explicit Lecteur_Lignes(std::string_view texte) : reste_(texte) {}
  explicit Lecteur_Lignes(std::string&&) = delete;

  /// True once every line has been given; an empty text has none.
  bool Fini() const { return reste_.empty(); }

  /// The next line; past the last one is run-time error 62.
  std::string_view Suivante();

 private:
  std::string_view reste_;
};

/// How many lines end in the text.
int Compte_Lignes(std::string_view texte);

/// The records of a file whose lines may hold several fields: a comma ends a record as a line end does.
class Lecteur_Champs {
 public:
  explicit Lecteur_Champs(std::string_view texte) : reste_(texte) {}
  explicit Lecteur_Champs(std::string&&) = delete;

  bool Fini() const { return reste_.empty(); }

  /// The next record; past the last one is run-time error 62.
  std::string_view Suivant();

 private:
  std::string_view reste_;
};

}  // namespace vorelio
