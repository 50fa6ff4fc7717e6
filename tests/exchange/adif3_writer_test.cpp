#include "exchange/adif3_writer.h"

#include <gtest/gtest.h>

#include <random>

#include "core/bands.h"
#include "support/contact.h"

namespace vorelio::tests {
namespace {

Contexte_Journal Home() { return {"F9QZX/P", "JN33BB", {"QSO", "DFCF", "IOTA", "POTA"}, {}}; }

TEST(Adif3Writer, OneRecord) {
  Champs_QSO qso = Contact({"31/12/50", "F6ABC", "23:59", "00:12", "2a", "JN33BC", "144 Mhz", "FT4", "59001", "-10",
                            "DFCF 89125", "Ren\xE9"});
  qso.Bloc_QSL = Blancs(7) + "4 02/01/88 15/06/88 ";
  qso.Distance_A = "5";
  qso.Azimut_A = "1";
  qso.Activ_A = "1";
  qso.Remarques_A = "C. de X";
  EXPECT_EQ(Enregistrement_ADIF3(Construit_Ligne(qso), Home()),
            "<CALL:5>F6ABC <QSO_DATE:8>19501231 <TIME_ON:4>2359 <TIME_OFF:4>0012 <BAND:2>2M <MODE:4>MFSK "
            "<SUBMODE:3>FT4 <RST_SENT:5>59001 <RST_RCVD:3>-10 <STATE:2>2A <GRIDSQUARE:6>JN33BC <DISTANCE:1>5 "
            "<ANT_AZ:1>1 <NAME:5>Ren\xC3\xA9 <QTH:10>DFCF 89125 <COMMENT:7>C. de X <QSL_SENT:1>Y <QSL_RCVD:1>Y "
            "<QSLSDATE:8>19880102 <QSLRDATE:8>19880615 <SIG:4>DFCF <SIG_INFO:5>89125 <STATION_CALLSIGN:7>F9QZX/P "
            "<MY_GRIDSQUARE:6>JN33BB <APP_VORELIO_DEPARTEMENT:5>2a    <APP_VORELIO_DISTANCE:6>5      "
            "<APP_VORELIO_AZIMUT:4>1    <APP_VORELIO_ACTIVITE:4>1    <EOR>");
  const std::string phone =
      Construit_Ligne(Contact({"01/01/49", "F6ABC", "10:00", "10:00", "", "", "14 Mhz", "SSB", "59001", "5901"}));
  EXPECT_EQ(Enregistrement_ADIF3(phone, {}),
            "<CALL:5>F6ABC <QSO_DATE:8>20490101 <TIME_ON:4>1000 <TIME_OFF:4>1000 <BAND:3>20M <MODE:3>SSB "
            "<RST_SENT:2>59 <STX:3>001 <RST_RCVD:4>5901 <QSL_SENT:1>N <QSL_RCVD:1>N "
            "<APP_VORELIO_ACTIVITE:4>     <EOR>");
}

TEST(Adif3Writer, HeaderNamesStationAndProgram) {
  const std::string file = Fichier_ADIF3("", Home(), "20030512 123456");
  EXPECT_EQ(file,
            "Journal de F9QZX/P, export\xC3\xA9 par Vorelio\r\n<ADIF_VER:5>3.1.4 "
            "<CREATED_TIMESTAMP:15>20030512 123456 <PROGRAMID:7>Vorelio <PROGRAMVERSION:6>5.6.9d <EOH>\r\n");
  EXPECT_EQ(Lit_Journal(file, Home()).format, "ADIF 3.1.4, Vorelio 5.6.9d");
}

/// Lines from those that the program writes to those that no program would.
class AnyLog {
 public:
  explicit AnyLog(unsigned seed) : random_(seed) {}

  std::string Line() {
    Champs_QSO qso = Contact({Date(), Pick({"F6ABC", "TK5AB/P", "DL/F9XX/QRP", "f6abc", "", "ABCDEFGHIJKL"}), Time(),
                              Time(), Pick({"06", "2a", "2b", "2A", "", "96", "33", "XX", "971"}),
                              Pick({"JN33BB", "JN45", "", "JN18LL", "jn33bb", "ZZ99ZZ"}), Band(), Mode(),
                              Pick({"59", "599", "-10", "59001", "599123", "5912", "", "59 AB"}),
                              Pick({"59", "+02", "599007", "59+20dB", ""}),
                              Pick({"Nice", "DFCF 89125", "IOTA EU064", "", "Saint-\xC9tienne"}),
                              Pick({"Ren\xE9", "", "A <b:1>", "\x80\x81\x9D\xFF", "two  words", "<EOR>"})});
    qso.Bloc_QSL = Blancs(7) + Pick({"1", "2", "3", "4", "4", "9", " "}) + " " + Card() + Card();
    qso.Distance_A = Pick({"", "?", "0", "512", "99999"});
    qso.Azimut_A = Pick({"", "?", "0", "360", "999"});
    qso.Activ_A = Pick({"0", "1", "2", "3", "17", "-1", ""});
    qso.Remarques_A = Pick({"", "C. de Nice", "POTA FR-1234", "\x93quoted\x94 \xE9t\xE9", " leading", "a\tb"});
    std::string line = Construit_Ligne(qso);
    if (Below(4) == 0)
      for (int i = Below(12); i > 0; --i) line[static_cast<std::size_t>(Below(199))] = Byte();
    if (Below(8) == 0) line.resize(static_cast<std::size_t>(Below(260)), Byte());
    return line;
  }

  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

 private:
  std::string Pick(std::initializer_list<const char*> words) {
    return *(words.begin() + Below(static_cast<int>(words.size())));
  }
  std::string Date() {
    return Deux_Chiffres(1 + Below(31)) + "/" + Deux_Chiffres(1 + Below(12)) + "/" + Deux_Chiffres(Below(100));
  }
  std::string Time() { return Below(20) == 0 ? "" : Deux_Chiffres(Below(25)) + ":" + Deux_Chiffres(Below(61)); }
  std::string Card() { return Complete(Below(2) == 0 ? Date() : "", 8, 1); }
  std::string Band() {
    const std::string band(kBandes[static_cast<std::size_t>(Below(17))]);
    return Below(20) == 0 ? "27 Mhz" : Below(10) == 0 ? Majuscules(band) : band;
  }
  std::string Mode() {
    if (Below(3) == 0) return Pick({"FT8", "FT4", "PSK63", "USB", "JT65B", "ssb", "XYZ", "", "DSTAR", "THRBX"});
    return std::string(kModes[static_cast<std::size_t>(Below(16))]);
  }
  /// Any but a line end.
  char Byte() {
    const char byte = static_cast<char>(Below(256));
    return byte == '\n' ? '\r' : byte;
  }

  std::mt19937 random_;
};

TEST(Adif3Writer, ExportAndImportGiveTheLogBackToTheByte) {
  AnyLog any(20030512);
  Contexte_Journal nowhere;
  Contexte_Journal abroad{"W1AW", "FN31PR", {"QSO", "X", "POTA"}, [](std::string_view) { return true; }};
  for (int round = 0; round < 6; ++round) {
    std::string log;
    std::vector<std::string> lines;
    for (int i = 0; i < 250; ++i) {
      lines.push_back(any.Line());
      log += lines.back() + "\r\n";
    }
    const Contexte_Journal from = any.Below(2) == 0 ? Home() : nowhere;
    const std::string file = Fichier_ADIF3(log, from, "20030512 123456");
    // Also where it is read at another station, that has other activities and another locator.
    for (const Contexte_Journal& to : {Home(), nowhere, abroad}) {
      const Journal_Lu journal = Lit_Journal(file, to);
      ASSERT_EQ(journal.qso.size(), lines.size());
      for (std::size_t i = 0; i < lines.size(); ++i)
        ASSERT_EQ(journal.qso[i].ligne, lines[i]) << Enregistrement_ADIF3(lines[i], from);
    }
  }
}

}  // namespace
}  // namespace vorelio::tests
