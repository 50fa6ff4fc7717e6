#include "core/errors.h"
#include "core/foreign_text.h"
#include "core/log_line.h"
#include "entry/ddfm.h"
#include "exchange/adif_import.h"
#include "exchange/century.h"
#include "exchange/edi_import.h"
#include "exchange/log_splice.h"
#include "exchange/native_import.h"
#include "stations/log_file.h"
#include "support/contact.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

const std::string kMarker = "01/01/50  XXXXXX      12:00  12:05" + Blancs(164) + "*";
const std::string kMarker_EDI = "01/01/50  XXXXXX      00:00  00:05" + Blancs(164) + "*";

std::string LogLine(const std::string& date, const std::string& time, const std::string& call) {
  return Construit_Ligne(Contact({date, call, time, "", "", "", "14 Mhz"}));
}

std::string Adif(const std::string& date, const std::string& time, const std::string& call) {
  return "<QSO_DATE:8>" + date + "<TIME_ON:4>" + time + "<CALL:5>" + call + "<BAND:3>20M<EOR>";
}

std::string Edi(const std::string& date, const std::string& time, const std::string& call) {
  return date + ";" + time + ";" + call + ";1;59;001;59;002;;JN33BB;";
}

class Imports : public StationFixture {
 protected:
  Imports() { ReadyStation("F9QZX"); }

  /// Starts over a log of these lines.
  void Start(const Lines& log) {
    WriteLines("F9QZX.log", log);
    Restart();
    Event([&] { programme->Fenetre<DDFM>(); });
    messages.Forget();
    messages.fatal_number = 0;
    disk.Mend();
    disk.Forget();
  }

  void Import(void (*import)(Programme&), const std::string& bytes) {
    Write("in", bytes);
    dialogs.Choose(folder.File("in"));
    Event([&] { import(*programme); });
  }
  void Adif_Lines(const Lines& records) { Import(Importe_ADIF, "<EOH>\r\n" + Joined(records)); }
  void Edi_Lines(const Lines& records) { Import(Importe_EDI, "PBand=144\r\n[QSORecords;1]\r\n" + Joined(records)); }
  void Ctf_Lines(const Lines& lines) { Import(Importe_CTF, Joined(lines)); }

  /// The callsigns in a file, in its order; "XXXXXX" is a marker, "-" an empty line.
  std::string Calls(const char* name) const {
    const std::string bytes = Read(name);
    std::string calls;
    for (Lecteur_Lignes lines(bytes); !lines.Fini();) {
      const auto line = lines.Suivante();
      calls.append(line.empty() ? "-" : Lit_Log(line, champs::Indicatif_A)).append(" ");
    }
    return calls;
  }

  const std::string& Status() const { return programme->Ouverte<DDFM>()->Etat.Caption(); }
};

TEST_F(Imports, ACancelledDialogLeavesOneMarkerThatTheNextImportTakesAway) {
  const struct {
    void (*import)(Programme&);
    const char* filter;
    std::string marker;
  } cases[] = {{Importe_ADIF, ".adi (adi)|*.adi", kMarker},
               {Importe_EDI, ".edi (edi)|*.edi", kMarker_EDI},
               {Importe_CTF, ".ctf (ctf)|*.ctf", kMarker}};
  const std::string old = LogLine("12/05/03", "12:00", "F1OLD");
  for (const auto& c : cases) {
    Start({old});
    dialogs.Choose("");
    Event([&] { c.import(*programme); });
    EXPECT_EQ(messages.TakeMessages(), Lines{"selectionnez un fichier ou quitter"});
    EXPECT_EQ(Read("F9QZX.log"), old + "\r\n" + c.marker + "\r\n");
    EXPECT_EQ(disk.Log(), Lines{"append F9QZX.log"});
    EXPECT_EQ(dialogs.calls.back().filter, c.filter);
    EXPECT_EQ(dialogs.calls.back().name, "");
    EXPECT_EQ(Status(), "");
    EXPECT_EQ(programme->Ouverte<DDFM>()->Liste_QSO.Count(), 1);
    Adif_Lines({Adif("20030513", "1200", "F2NEW")});
    EXPECT_EQ(Calls("F9QZX.log"), "F1OLD F2NEW ");
  }
}

TEST_F(Imports, TheBlockGoesInAtOnePlaceInItsOwnOrder) {
  const Lines log = {LogLine("01/01/99", "10:00", "A"), LogLine("12/05/03", "12:34", "B"),
                     LogLine("31/12/49", "23:59", "C")};
  const struct {
    const char *date, *time, *adif, *edi, *ctf;
  } cases[] = {
      {"12/05/03", "12:33", "A N M B C ", "A N M B C ", "A N M B C "},
      {"12/05/03", "12:34", "A N M B C ", "A N M B C ", "A N M B C "},
      {"12/05/03", "12:35", "A B N M C ", "A B N M C ", "A B N M C "},
      {"01/01/98", "00:00", "N M A B C ", "N M A B C ", "N M A B C "},
      // Newer than the whole log: EDI's own marker is of 1950, and no place is found.
      {"31/12/49", "23:59", "A B N M C ", "A B N M C ", "A B N M C "},
      // The year 50 is of this century for ADIF and EDI, and of the last for the first line of a native file.
      {"01/01/50", "12:00", "A B C N M ", "A B C ", "N M A B C "},
      {"01/01/50", "12:01", "A B C ", "A B C ", "N M A B C "},
      {"01/01/51", "00:00", "N M A B C ", "N M A B C ", "N M A B C "},
  };
  for (const auto& c : cases) {
    const std::string date = c.date, time = c.time;
    const std::string day = date.substr(0, 2), month = date.substr(3, 2), year = date.substr(6, 2);
    const std::string hhmm = time.substr(0, 2) + time.substr(3, 2);
    const std::string full = (year >= "51" ? "19" : "20") + year;
    Start(log);
    Adif_Lines({Adif(full + month + day, hhmm, "N"), Adif("20000101", "0000", "M")});
    EXPECT_EQ(Calls("F9QZX.log"), c.adif) << "ADIF " << date << " " << time;
    Start(log);
    Edi_Lines({Edi(year + month + day, hhmm, "N"), Edi("000101", "0000", "M")});
    EXPECT_EQ(Calls("F9QZX.log"), c.edi) << "EDI " << date << " " << time;
    Start(log);
    Ctf_Lines({LogLine(date, time, "N"), LogLine("01/01/00", "00:00", "M")});
    EXPECT_EQ(Calls("F9QZX.log"), c.ctf) << "CTF " << date << " " << time;
    EXPECT_EQ(messages.fatal_number, 0);
  }
  // A first record of 2051 or later has a date of its own in ADIF alone.
  Start(log);
  Adif_Lines({Adif("20510101", "0000", "N")});
  EXPECT_EQ(Calls("F9QZX.log"), "A B C ");
}

TEST_F(Imports, LinesOfTheYear50LieOnEitherSide) {
  const Lines log = {LogLine("02/01/50", "10:00", "A"), LogLine("12/05/03", "10:00", "B")};
  Start(log);
  Adif_Lines({Adif("20020101", "0000", "N")});
  EXPECT_EQ(Calls("F9QZX.log"), "N A B ");
  Start(log);
  Edi_Lines({Edi("020101", "0000", "N")});
  EXPECT_EQ(Calls("F9QZX.log"), "A N B ");
  Start(log);
  Ctf_Lines({LogLine("01/01/02", "00:00", "N")});
  EXPECT_EQ(Calls("F9QZX.log"), "N A B ");
}

TEST_F(Imports, AnEmptyLogAndAnEmptyLineInTheLog) {
  Start({});
  Adif_Lines({Adif("20030512", "1234", "N")});
  EXPECT_EQ(Calls("F9QZX.log"), "N ");
  Start({});
  Edi_Lines({Edi("030512", "1234", "N")});
  EXPECT_EQ(Calls("F9QZX.log"), "");
  EXPECT_EQ(Status(), De_Utf8("Import EDI : 1 enregistrement lu, 0 ligne ajoutée"));

  const std::string line = LogLine("12/05/03", "12:34", "A");
  Start({line, "", LogLine("13/05/03", "12:34", "B")});
  Adif_Lines({Adif("20030512", "1235", "N")});
  EXPECT_EQ(Calls("F9QZX.log"), "A - N B ");
  // At the top it has no line before it to take a date from.
  Start({"", line});
  Adif_Lines({Adif("20030512", "1235", "N")});
  EXPECT_EQ(messages.fatal_number, 13);
  EXPECT_EQ(Read("F9QZX.log"), "\r\n" + line + "\r\n" + kMarker + "\r\n");

  // In the other two it has none anywhere, also after the place of the block.
  for (const bool behind : {false, true}) {
    Start(behind ? Lines{line, ""} : Lines{"", line});
    Edi_Lines({Edi("030511", "0000", "N")});
    EXPECT_EQ(messages.fatal_number, 13);
    EXPECT_EQ(Calls("Temporaire7.txt"), behind ? "N A " : "");
    EXPECT_EQ(Calls("F9QZX.log"), behind ? "A - XXXXXX " : "- A XXXXXX ");
    Start(behind ? Lines{line, ""} : Lines{"", line});
    Ctf_Lines({LogLine("11/05/03", "00:00", "N")});
    EXPECT_EQ(messages.fatal_number, 13);
    EXPECT_EQ(Calls("Temporaire7.txt"), behind ? "N A " : "");
  }
}

TEST_F(Imports, EveryFailureLeavesTheLogWithItsMarkerAndWhatWasMerged) {
  const std::string a = LogLine("12/05/03", "12:34", "A"), b = LogLine("13/05/03", "12:34", "B");
  const std::string good = Adif("20030513", "0000", "N");
  const struct {
    void (*import)(Programme&);
    std::string bytes;
    int error;
    const char* work_file;  ///< Its callsigns, null where there is none.
  } cases[] = {
      {Importe_ADIF, "<EOH>\r\n" + good + "\r\n<CALL:5>F6ABC\r\n", 5, "A N "},
      {Importe_ADIF, "<EOH>\r\n" + good + "\r\n" + good + "\r\n<STATE:0><EOR>\r\n", 5, "A N N "},
      {Importe_ADIF, "<EOH>\r\n<CALL:5>F6ABC<EOR>\r\n", 5, nullptr},
      {Importe_ADIF, "<EOH>\r\n", 62, nullptr},
      {Importe_ADIF, good + "\r\n", 13, ""},
      {Importe_ADIF, "", 13, ""},
      {Importe_ADIF, "<EOH>\r\n" + Adif("20030231", "0000", "N"), 13, ""},
      {Importe_ADIF, "<EOH>\r\n" + Adif("20030513", "2460", "N"), 13, ""},
      {Importe_EDI, "PBand=144 MHz\r\n[QSORecords;1]\r\n" + Edi("030513", "0000", "N"), 5, "A "},
      {Importe_EDI, "[QSORecords;1]\r\n" + Edi("030513", "0000", "N") + "\r\n030513;0000;M;1;59\r\n", 5, "A N "},
      {Importe_EDI, "[QSORecords;0]\r\n\r\n", 13, ""},
      {Importe_EDI, "[QSORecords;0]\r\n", 62, nullptr},
      {Importe_EDI, "[REG1TEST;1]\r\n", 13, ""},
      {Importe_CTF, "", 62, nullptr},
      {Importe_CTF, "\r\n" + a, 13, ""},
      {Importe_CTF, "no contact", 13, ""},
  };
  for (const auto& c : cases) {
    Start({a, b});
    for (const char* name : {"Temporaire7.txt", "Temporaire8.txt"}) folder.Remove(name);
    Import(c.import, c.bytes);
    EXPECT_EQ(messages.fatal_number, c.error) << c.bytes;
    EXPECT_EQ(Read("F9QZX.log"), a + "\r\n" + b + "\r\n" + (c.import == Importe_EDI ? kMarker_EDI : kMarker) + "\r\n");
    const char* name = c.import == Importe_ADIF ? "Temporaire8.txt" : "Temporaire7.txt";
    EXPECT_EQ(folder.Exists(name), c.work_file != nullptr) << c.bytes;
    if (c.work_file) {
      EXPECT_EQ(Calls(name), c.work_file) << c.bytes;
    }
    // The next start reads the log, marker included.
    Restart();
    Event([&] { programme->Fenetre<DDFM>(); });
    EXPECT_EQ(programme->Ouverte<DDFM>()->Liste_QSO.Count(), 3);
  }
}

TEST_F(Imports, TouchesTheDiskInThisOrder) {
  Start({LogLine("12/05/03", "12:34", "A")});
  const Lines splice = {"append F9QZX.log",      "read in",         "read F9QZX.log",
                        "write Temporaire7.txt", "write F9QZX.log", "delete Temporaire7.txt"};
  Edi_Lines({Edi("030511", "0000", "N"), Edi("030511", "0001", "M")});
  auto expected = splice;
  expected.push_back("read F9QZX.log");
  EXPECT_EQ(disk.Log(), expected);
  EXPECT_EQ(messages.TakeMessages(), Lines{});

  // The rebuilds follow, each with its own box.
  Start({LogLine("12/05/03", "12:34", "A")});
  Ctf_Lines({LogLine("13/05/03", "12:34", "N")});
  const Lines boxes = {"Le fichier Prefixe va etre mis a jour a partir du fichier log",
                       "Le fichier Locator va etre mis a jour a partir du fichier log",
                       "Le fichier Departement va etre mis a jour a partir du fichier log"};
  EXPECT_EQ(messages.TakeMessages(), boxes);
  EXPECT_EQ(Lines(disk.Log().begin(), disk.Log().begin() + 6), splice);
  Start({LogLine("12/05/03", "12:34", "A")});
  Adif_Lines({Adif("20030513", "0000", "N")});
  EXPECT_EQ(messages.TakeMessages(), boxes);
  EXPECT_EQ(disk.Log()[3], "write Temporaire8.txt");
}

// A record over several lines isn't joined: each line is a record of its own, and lacks most fields.
TEST_F(Imports, EachLineIsARecord) {
  Start({});
  Adif_Lines({"<QSO_DATE:8>20030513<TIME_ON:4>1200<CALL:5>F6BBB<BAND:3>20M<", "<MODE:3>SSB<STATE:2>06<", "<EOR>"});
  const Lines told = messages.TakeMessages();
  ASSERT_EQ(told.size(), 11U);
  const Lines lacking = {"Date absente, remplacée par 01/01/2000"_t, "Heure absente, remplacée par 00:00"_t,
                         "Indicatif absent, remplacé par FXXXX"_t, "Bande absente, remplacée par 1.8 Mhz"_t};
  for (const std::size_t first : {0, 4}) EXPECT_TRUE(std::equal(lacking.begin(), lacking.end(), told.begin() + first));
  EXPECT_EQ(Calls("F9QZX.log"), "F6BBB FXXXX FXXXX ");
  EXPECT_EQ(Line("F9QZX.log", 2).substr(0, 68), "01/01/2000FXXXX       00:00  00:00  06           1.8 Mhz   SSB      ");
  EXPECT_EQ(Status(), "Import ADIF : 3 enregistrements lus, 3 lignes ajoutées"_t);
}

TEST_F(Imports, FaultsOfTheDisk) {
  const std::string a = LogLine("12/05/03", "12:34", "A");
  const struct {
    const char* at;
    Erreur error;
    const char *log, *work_file;  ///< What stands of them.
  } cases[] = {
      {"append F9QZX.log", Erreur::Disque_Plein, "A ", ""},
      {"read in", Erreur::Fichier_Introuvable, "A XXXXXX ", ""},
      {"write Temporaire7.txt", Erreur::Disque_Plein, "A XXXXXX ", ""},
      {"write F9QZX.log", Erreur::Disque_Non_Pret, "A XXXXXX ", "N A XXXXXX "},
      {"delete Temporaire7.txt", Erreur::Permission_Refusee, "N A ", "N A XXXXXX "},
  };
  for (const auto& c : cases) {
    Start({a});
    folder.Remove("Temporaire7.txt");
    disk.FailOn(c.at, c.error);
    Edi_Lines({Edi("030511", "0000", "N")});
    EXPECT_EQ(messages.fatal_number, static_cast<int>(c.error)) << c.at;
    EXPECT_EQ(Calls("F9QZX.log"), c.log) << c.at;
    EXPECT_EQ(Calls("Temporaire7.txt"), c.work_file) << c.at;
  }
}

TEST_F(Imports, NativeLinesComeInAsTheyStand) {
  const std::string odd = LogLine("11/05/03", "12:00", "N").substr(0, 60);
  const std::string utf8 = LogLine("01/01/01", "00:00", "M").replace(110, 5, "Zo\xC3\xA9 ");
  Start({LogLine("12/05/03", "12:34", "A")});
  Import(Importe_CTF, odd + "\n" + utf8 + "\r\n\r\n" + kMarker_EDI + "\r\nx");
  EXPECT_EQ(Read("F9QZX.log"), odd + "\r\n" + utf8 + "\r\n\r\nx\r\n" + LogLine("12/05/03", "12:34", "A") + "\r\n");
  // A second time they are there twice.
  Start({LogLine("12/05/03", "12:34", "A")});
  const std::string line = LogLine("13/05/03", "12:00", "N");
  Ctf_Lines({line});
  Ctf_Lines({line});
  EXPECT_EQ(Calls("F9QZX.log"), "A N N ");
  EXPECT_EQ(Status(), De_Utf8("Import CTF : 1 enregistrement lu, 1 ligne ajoutée"));
}

TEST_F(Imports, EventsAreServedAndNoContactIsLostMeanwhile) {
  const std::string a = LogLine("12/05/03", "12:34", "A"), saved = LogLine("14/05/03", "10:00", "SAVED");
  Start({a});
  auto& ddfm = *programme->Ouverte<DDFM>();
  int served = 0;
  std::string work_file;
  windows.OnServe = [&] {
    if (++served != 2) return;
    EXPECT_FALSE(ddfm.Mnu_Import_ADIF.Enabled());
    programme->Recoit([&] { Ajoute_Ligne_Log(*programme, saved); });
    work_file = Calls("Temporaire7.txt");
  };
  Edi_Lines({Edi("030511", "0000", "N"), Edi("030511", "0001", "M"), Edi("030511", "0002", "O")});
  windows.OnServe = nullptr;
  EXPECT_EQ(work_file, "N M ");
  EXPECT_EQ(Calls("F9QZX.log"), "N M O A SAVED ");
  EXPECT_TRUE(ddfm.Mnu_Import_ADIF.Enabled());

  // A station that is reset meanwhile has lost the marker, but not what comes in.
  Start({a});
  windows.OnServe = [&] {
    windows.OnServe = nullptr;
    programme->Recoit([&] { programme->Disque().WriteAll(folder.File("F9QZX.log"), ""); });
  };
  Edi_Lines({Edi("030511", "0000", "N"), Edi("030511", "0001", "M")});
  EXPECT_EQ(Calls("F9QZX.log"), "N M ");

  // The user ends the program in the middle.
  Start({a});
  windows.OnServe = [&] {
    windows.OnServe = nullptr;
    programme->Recoit([&] { programme->Fenetre<DDFM>().UserClose(); });
  };
  Edi_Lines({Edi("030511", "0000", "N"), Edi("030511", "0001", "M")});
  EXPECT_TRUE(programme->Termine_Deja());
  EXPECT_EQ(Calls("F9QZX.log"), "A XXXXXX ");
  EXPECT_EQ(Calls("Temporaire7.txt"), "N ");
}

TEST(OutsideText, IsUtf8OrWindows1252) {
  const std::pair<const char*, const char*> cases[] = {
      {"plain", "plain"},
      {"Ren\xC3\xA9 \xE2\x82\xAC", "Ren\xE9 \x80"},
      {"Ren\xE9", "Ren\xE9"},
      // One byte that isn't UTF-8 speaks for the whole file.
      {"Ren\xC3\xA9 Ren\xE9", "Ren\xC3\xA9 Ren\xE9"},
      {"\xEF\xBB\xBF[REG1TEST;1]", "[REG1TEST;1]"},
      {"\xE6\x9D\xB1\xE4\xBA\xAC \xC3\xA9 \xEF\xBF\xBD", "?? \xE9 ?"},
      // Letters that happen to be a valid sequence, of which no letter of the set can be the meaning.
      {"\xC9\x85 Ren\x65", "\xC9\x85 Rene"},
      {"\xC3\xA9\xC9\x85", "\xE9?"},
      {"\xEF\xBB\xBF\xC9\x85", "?"},
      {"<eor>\r\n\x1A", "<eor>\r\n"},
      {"<eor>\x1A\x1A\r\n", "<eor>"},
      {"a\x1A"
       "b\x1A",
       "a\x1A"
       "b"},
      {"\x1A", ""},
      {"cut \xC3", "cut \xC3"},
      {"", ""},
  };
  for (const auto& [bytes, text] : cases) EXPECT_EQ(Texte_Recu(bytes), text) << bytes;
}

TEST(Century, HasTwoBorders) {
  const struct {
    const char *year, *from_50, *from_51;
  } cases[] = {{"00", "2000", "2000"}, {"49", "2049", "2049"}, {"50", "1950", "2050"}, {"51", "1951", "1951"},
               {"99", "1999", "1999"}, {"-1", "-1", "-1"},     {"", "20", "20"},       {"ab", "20ab", "20ab"}};
  for (const auto& c : cases) {
    EXPECT_EQ(Annee_Complete(c.year, Siecle::Depuis_50), c.from_50);
    EXPECT_EQ(Annee_Complete(c.year, Siecle::Depuis_51), c.from_51);
  }
  EXPECT_EQ(Date_Complete("01/01/2000FXXXX", Siecle::Depuis_51), "01/01/2020");
}

}  // namespace
}  // namespace vorelio::tests
