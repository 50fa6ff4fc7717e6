#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/text.h"

/// The page of the cluster site as text: where it is, its rows, and the list lines that they become. The page's marks
/// and their offsets are the site's; nothing else of its markup is known.
namespace vorelio {

// --- The site -------------------------------------------------------------------------------------------------------

/// A row of the band list: what the operator reads, the word in the page's path, and whether the page is one of the
/// site's long ones, which bear no unit.
struct Bande_Cluster {
  const char* nom;
  const char* mot;
  bool toutes;
};

inline constexpr std::array<Bande_Cluster, 13> kBandes_Cluster = {{{"All HF", "HF", true},
                                                                   {"1.8 Mhz", "1.8", false},
                                                                   {"3.5 Mhz", "3.5", false},
                                                                   {"7.0 Mhz", "7", false},
                                                                   {"10 Mhz", "10", false},
                                                                   {"14 Mhz", "14", false},
                                                                   {"18 Mhz", "18", false},
                                                                   {"21 Mhz", "21", false},
                                                                   {"24 Mhz", "24", false},
                                                                   {"28 Mhz", "28", false},
                                                                   {"50 Mhz", "50", false},
                                                                   {"144 Mhz", "144", false},
                                                                   {"All VHF", "VHF", true}}};

/// The page of a band: "/dxc/top_250_HF.html" or "/dxc/top_50_14_MHz.html". No such band is run-time error 9.
std::string Chemin_De_Page(int bande);

/// An operator's site address as the start of a URL: without blanks around it and "/" at its end, and over HTTP where
/// no scheme stands in front.
std::string Adresse_Complete(std::string_view adresse);

// --- The page's text ------------------------------------------------------------------------------------------------

/// The first line of a page as files are read here, up to a CR. The site ends its lines in LF alone, so it is the
/// whole page; of one with CR LF only the first line is left.
std::string Premiere_Ligne(std::string texte);

/// The text with each LF as CR LF, and one CR LF more at its end.
std::string Fins_De_Ligne(std::string_view texte);

// --- Rows -----------------------------------------------------------------------------------------------------------

/// One spot, its fields filled to their widths.
struct Spot {
  std::string DX;         ///< 12 characters, a longer call is cut.
  std::string QRG;        ///< 8 characters, right aligned; kHz as the site writes them.
  std::string Date;       ///< Date and time, as they come.
  std::string Spotter;    ///< 11 characters.
  std::string Remarques;  ///< As they come.
};

/// The spots of a page's first table, one after another: a row is seven lines, and the heading after "<TABLE>" another
/// seven. A page without a table has no spot. The text must outlive the reader.
class Lecteur_Spots {
 public:
  /// Upper-case text with lines as `Fins_De_Ligne` ends them. A table that ends within its heading is run-time error
  /// 62.
  explicit Lecteur_Spots(std::string_view texte);
  explicit Lecteur_Spots(std::string&&) = delete;

  /// The next spot, or nothing after the last one. Run-time error 62: the page ends within a row; 5: a mark is
  /// missing, or a frequency or a spotter too long for its column.
  std::optional<Spot> Suivant();

 private:
  Lecteur_Lignes lignes_;
  bool dans_table_ = false;
};

// --- List lines -----------------------------------------------------------------------------------------------------

/// The sort orders, in that of their option buttons.
enum class Tri { QTR, Indicatif, QRG };

/// A spot as a line of the list: a blank, and the fields joined by blanks, the one to sort by in front.
std::string Ligne_De_Liste(const Spot& spot, Tri tri);

/// The heading over the spots, and over those kept in memory. Their words were set by eye over the columns.
std::string_view Entete_Liste(Tri tri);
std::string_view Entete_Memoire(Tri tri);

}  // namespace vorelio
