#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// Logs as other programs write them, ADIF 3 and EDI, read whole: every record becomes a log line, or is refused with
/// the reason. Nothing here touches the station's log.
namespace vorelio {

/// What the reading and the writing need to know of the station.
struct Contexte_Journal {
  std::string indicatif;               ///< As it is shown, with "/".
  std::string locator;                 ///< Six characters; any other text counts as not known.
  std::vector<std::string> activites;  ///< Names by number; number 0 is the plain contact.
  /// Whether a department counts for a callsign. Without it, whether it begins with a prefix of France.
  std::function<bool(std::string_view indicatif)> francais = {};
};

/// Told from time to time how many bytes of how many are done. What it throws ends the work.
using Avancement = std::function<void(std::size_t fait, std::size_t total)>;

/// A record that comes in.
struct QSO_Lu {
  std::string
      ligne;  ///< A `Ligne_Log`; of any length, empty too, where one of this program's own odd lines comes back.
  bool coupe = false;  ///< Something of the record had no room in its column, or isn't in the character set.
};

/// A record that doesn't.
struct QSO_Refuse {
  std::size_t numero = 0;   ///< Of the record in the file, from 1.
  std::size_t place = 0;    ///< Of its first line in the file, from 1.
  std::string indicatif;    ///< As it was read; may be empty.
  std::string raison;       ///< For the operator.
  std::string_view brut;    ///< The record as it was; looks into the file's bytes.
  std::string_view entete;  ///< What stands above the records of its part of the file; likewise.
};

/// A whole file.
struct Journal_Lu {
  std::string format;     ///< What the file is, and which program wrote it if it says so: "ADIF 3.1.4, WSJT-X 2.6".
  std::string illisible;  ///< Why it can't be read at all, a sentence for the operator; empty if it can.
  std::vector<QSO_Lu> qso;
  std::vector<QSO_Refuse> refuses;

  std::size_t Lus() const { return qso.size() + refuses.size(); }
};

/// The longest file that is read. A longer one is refused as `illisible`; who knows the size beforehand needn't read
/// it.
inline constexpr std::size_t kTaille_Max_Journal = std::size_t{512} << 20;

/// The sentence for a file of more than `kTaille_Max_Journal` bytes.
std::string Journal_Trop_Long();

/// Reads ADIF or EDI, whichever the contents are. `octets` must outlive the result. No file is an error: one that is
/// neither leaves a sentence in `illisible`.
Journal_Lu Lit_Journal(std::string_view octets, const Contexte_Journal& contexte, const Avancement& avancement = {});

/// The file of the refused records, as they were, under the headers that they had. Empty if none was refused.
std::string Fichier_Refuses(const Journal_Lu& journal);

}  // namespace vorelio
