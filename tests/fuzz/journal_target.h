#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/log_line.h"
#include "core/text.h"
#include "exchange/adif3_writer.h"

namespace vorelio::tests {

/// A log of another program that goes well, to begin from.
inline std::string Adif3Seed() {
  return "WSJT-X ADIF Export\r\n<adif_ver:5>3.1.1<EOH>\r\n"
         "<call:6>DL1XYZ <gridsquare:4>JO40 <mode:4>MFSK <submode:3>FT4 <rst_sent:3>-10 <rst_rcvd:3>+02 "
         "<qso_date:8>20240131 <time_on:6>235945 <time_off:6>000100 <band:2>2m <freq:7>144.174 <eor>\r\n"
         "<CALL:5>F6ABC\r\n<QSO_DATE:8:D>20030512<TIME_ON:4>1234<FREQ:6>14.195<MODE:3>SSB<RST_SENT:2>59<STX:1>1"
         "<NAME:5>Ren\xC3\xA9<STATE:2>06<COMMENT:6>a<b:1>c<QSL_SENT:1>Y<QSLSDATE:8>20030601<SIG:4>DFCF<SIG_INFO:5>06001"
         "<EOR>\r\n<CALL:5>TK5AB<QSO_DATE:8>19991231<TIME_ON:4>0000<BAND:3>40m<APP_VORELIO_QTH:3>abc<eor>\r\n";
}

inline std::string EdiJournalSeed() {
  return "[REG1TEST;1]\r\nTName=Rallye\r\nPWWLo=JN33BB\r\nPBand=144 MHz\r\n[Remarks]\r\n[QSORecords;2]\r\n"
         "030512;1234;F9XKV;1;59;001;59;002;06;JN33BB;12;;;;\r\n"
         "030512;1259;DL1XYZ/P;2;599;002;599;017;;JO40AA;512;;;;\r\n"
         "[REG1TEST;1]\r\nPBand=1,3 GHz\r\n[QSORecords;1]\r\n030512;1235;DL1XYZ;2;599;002;599;017;;JO40;;;;;\r\n";
}

/// Reads one file, and writes and reads what has come in. Gives 0 if all records have come in, 1 if some were refused,
/// 2 if the file can't be read; a breach of what must hold aborts.
inline int RunJournal(std::string_view file) {
  const auto require = [](bool held, const char* what) {
    if (held) return;
    std::fprintf(stderr, "journal: %s\n", what);
    std::abort();
  };
  const Contexte_Journal station{"F9QZX", "JN33BB", {"QSO", "DFCF"}, {}};
  const Journal_Lu journal = Lit_Journal(file, station);
  const bool own = Majuscules(file).find("APP_VORELIO_") != std::string::npos;
  std::string log;
  for (const QSO_Lu& qso : journal.qso) {
    require(own || (qso.ligne.size() == kLargeur_Ligne && qso.ligne.ends_with('*')), "a line that is no log line");
    require(qso.ligne.find('\n') == std::string::npos, "a line end in a line");
    log.append(qso.ligne).append("\r\n");
  }
  for (const QSO_Refuse& refused : journal.refuses) {
    require(!refused.raison.empty(), "a refusal without a reason");
    require(
        refused.brut.data() >= file.data() && refused.brut.data() + refused.brut.size() <= file.data() + file.size(),
        "a refused record that isn't the file's");
  }
  require(journal.illisible.empty() || journal.Lus() == 0, "records of a file that can't be read");

  const std::string written = Fichier_ADIF3(log, station, {});
  const Journal_Lu back = Lit_Journal(written, station);
  require(back.refuses.empty() && back.qso.size() == journal.qso.size(), "another count after writing and reading");
  for (std::size_t i = 0; i < back.qso.size(); ++i)
    require(back.qso[i].ligne == journal.qso[i].ligne, "another line after writing and reading");
  return !journal.illisible.empty() ? 2 : journal.refuses.empty() ? 0 : 1;
}

}  // namespace vorelio::tests
