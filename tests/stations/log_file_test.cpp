#include "stations/log_file.h"

#include "core/calendar.h"
#include "core/errors.h"
#include "core/log_line.h"
#include "entry/ddfm.h"
#include "maintenance/backup.h"
#include "qsl/qsl_state.h"
#include "stations/log_guard.h"
#include "support/contact.h"
#include "support/error_of.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

std::string Ligne(const std::string& date, const std::string& heure, const std::string& indicatif) {
  return Construit_Ligne(Contact({date, indicatif, heure}));
}

class LogFile : public StationFixture {
 protected:
  LogFile() { ReadyStation("F9QZX"); }

  DDFM& Start(const std::string& log) {
    Write("F9QZX.log", log);
    Event([&] { programme->Fenetre<DDFM>(); });
    disk.Forget();
    return *programme->Ouverte<DDFM>();
  }

  /// The callsigns of the list, in its order.
  std::string Calls() const {
    std::string calls;
    for (const auto& row : programme->Ouverte<DDFM>()->Liste_QSO.Items())
      calls.append(Lit_Liste(row, champs::Indicatif_A)).append(" ");
    return calls;
  }
};

TEST_F(LogFile, InsertsAtTheDateWithItsCentury) {
  struct {
    const char *date, *time, *order;
  } const cases[] = {
      {"31/12/49", "10:00", "OLD MID LATE NEW "},  // 2049
      {"01/01/50", "00:00", "NEW OLD MID LATE "},  // 1950
      {"01/06/99", "12:00", "OLD NEW MID LATE "},
      {"02/01/04", "10:00", "OLD MID NEW LATE "},  // a tie goes to the new one
      {"02/01/04", "10:01", "OLD MID LATE NEW "},
  };
  const std::string log = Joined(
      {Ligne("01/01/99", "10:00", "OLD"), Ligne("01/01/04", "23:59", "MID"), Ligne("02/01/04", "10:00", "LATE")});
  for (const auto& c : cases) {
    Restart();
    Start(log);
    Event([&] { Insere_QSO_Log(*programme, Ligne(c.date, c.time, "NEW")); });
    EXPECT_EQ(Calls(), c.order) << c.date;
    // The file is the list without its numbers.
    std::string bytes;
    int number = 1;
    for (const auto& row : programme->Ouverte<DDFM>()->Liste_QSO.Items()) {
      EXPECT_EQ(row.substr(0, 6), Colonne_Numero(number++));
      bytes.append(Partie_Log(row)).append("\r\n");
    }
    EXPECT_EQ(Read("F9QZX.log"), bytes);
    EXPECT_EQ(disk.Changes(), Lines{"write F9QZX.log"});
  }
}

TEST_F(LogFile, AsksOldLinesForTheirDateOnlyUntilThePlaceIsFound) {
  const std::string broken = Ligne("31/02/05", "10:00", "BROKEN") + "\r\n";
  Start(Ligne("01/01/04", "10:00", "LATE") + "\r\n" + broken);
  Event([&] { Insere_QSO_Log(*programme, Ligne("01/01/03", "10:00", "NEW")); });
  EXPECT_EQ(Calls(), "NEW LATE BROKEN ");
  EXPECT_EQ(messages.fatal_number, 0);

  Restart();
  Start(broken + Ligne("01/01/04", "10:00", "LATE") + "\r\n");
  const std::string before = Read("F9QZX.log");
  Event([&] { Insere_QSO_Log(*programme, Ligne("01/01/06", "10:00", "NEW")); });
  EXPECT_EQ(messages.fatal_number, 13);
  EXPECT_EQ(Read("F9QZX.log"), before);
}

TEST_F(LogFile, ReadsWhateverEndsItsLines) {
  const std::string line = Ligne("01/01/04", "10:00", "F6ABC");
  const std::pair<std::string, int> cases[] = {
      {"", 0}, {line + "\r\n", 1}, {line + "\n" + line, 2}, {line + "\r\n" + line.substr(0, 90), 2}, {"\r\n\r\n", 2}};
  for (const auto& [bytes, count] : cases) {
    Restart();
    auto& ddfm = Start(bytes);
    EXPECT_EQ(ddfm.Liste_QSO.Count(), count);
    EXPECT_EQ(programme->contexte.Nb_QSO, count);
    EXPECT_EQ(ddfm.Frame4.Caption(), De_Utf8("QSO numéro ") + std::to_string(count + 1));
    EXPECT_TRUE(ddfm.Visible());
    // Reading changes nothing.
    EXPECT_EQ(Read("F9QZX.log"), bytes);
  }
}

TEST_F(LogFile, AMissingLogAndTheHundredThousandthLineEndTheProgram) {
  folder.Remove("F9QZX.log");
  Event([&] { programme->Fenetre<DDFM>(); });
  EXPECT_EQ(messages.fatal_number, 53);

  Restart();
  std::string log;
  for (int i = 0; i < 100000; ++i) log += "x\r\n";
  Write("F9QZX.log", log);
  Event([&] { programme->Fenetre<DDFM>(); });
  EXPECT_EQ(messages.fatal_number, 5);
}

TEST_F(LogFile, AFullLogTakesNoInsertion) {
  std::string log;
  for (int i = 0; i < 99999; ++i) log += "01/01/04  F6ABC       10:00\r\n";
  auto& ddfm = Start(log);
  Event([&] { Insere_QSO_Log(*programme, Ligne("01/01/03", "10:00", "NEW")); });
  EXPECT_EQ(messages.fatal_number, 5);
  EXPECT_EQ(ddfm.Liste_QSO.Item(0).substr(0, 16), "    1 01/01/04  ");
  EXPECT_EQ(Read("F9QZX.log"), log);
}

TEST_F(LogFile, DeletesAndRenumbers) {
  const std::string a = Ligne("01/01/04", "10:00", "A"), c = Ligne("03/01/04", "10:00", "C");
  auto& ddfm = Start(Joined({a, Ligne("02/01/04", "10:00", "B"), c}));
  Event([&] {
    ddfm.Liste_QSO.SetListIndex(1);
    Efface_Ligne_Log(*programme);
  });
  EXPECT_EQ(Calls(), "A C ");
  EXPECT_EQ(ddfm.Liste_QSO.Item(1).substr(0, 6), "    2 ");
  EXPECT_EQ(Read("F9QZX.log"), Joined({a, c}));
  Event([&] { Efface_Ligne_Log(*programme); });
  EXPECT_EQ(messages.fatal_number, 5);
}

// What another program, or an editor, has done to the log isn't lost to what this run writes over it.
TEST_F(LogFile, ALogThatAnotherHandHasChangedIsKeptBeside) {
  const std::string a = Ligne("01/01/04", "10:00", "A"), b = Ligne("02/01/04", "10:00", "B");
  const std::string others = Joined({a, b, Ligne("03/01/04", "10:00", "OTHER")});
  const std::pair<const char*, std::function<void(DDFM&)>> deeds[] = {
      {"insertion", [&](DDFM&) { Insere_QSO_Log(*programme, Ligne("01/01/03", "10:00", "NEW")); }},
      {"edit", [&](DDFM& ddfm) { Remplace_QSO_Log(*programme, ddfm.Liste_QSO.Item(0), ddfm.Liste_QSO.Item(1)); }},
      {"deletion", [&](DDFM& ddfm) { ddfm.Liste_QSO.SetListIndex(0), Efface_Ligne_Log(*programme); }},
      {"card",
       [&](DDFM&) {
         Lignes_Remplacees cards;
         cards.Note(a, b);
         cards.Applique(*programme);
       }},
      {"restore", [&](DDFM& ddfm) { ddfm.Mnu_Restauration.UserClick(); }},
      {"reset", [&](DDFM& ddfm) { ddfm.Mnu_RAZ_All.UserClick(); }}};
  for (const auto& [deed, act] : deeds) {
    SCOPED_TRACE(deed);
    Restart();
    folder.Remove("F9QZX.log.garde-20030512-143456");
    auto& ddfm = Start(Joined({a, b}));
    Event([&] { Sauvegarde_Auto(*programme); });
    // Its own appends are known to it.
    Event([&] { Ajoute_Ligne_Log(*programme, b); });
    Write("F9QZX.log", others);
    messages.Answer(true);
    Event([&, &act = act] { act(ddfm); });
    EXPECT_EQ(messages.fatal_number, 0);
    EXPECT_EQ(Read("F9QZX.log.garde-20030512-143456"), others);
    EXPECT_EQ(ddfm.Etat.Caption(),
              "Le journal a été changé hors de Vorelio : gardé tel quel dans F9QZX.log.garde-20030512-143456"_t);
    // What it has written itself is known again.
    Event([&] { Insere_QSO_Log(*programme, Ligne("01/01/02", "10:00", "NEW")); });
    EXPECT_FALSE(folder.Exists("F9QZX.log.garde-20030512-143456-2"));
  }
  // A line that is added to a changed log doesn't make the rest of it known.
  Restart();
  folder.Remove("F9QZX.log.garde-20030512-143456");
  Start(Joined({a, b}));
  Write("F9QZX.log", others);
  Event([&] { Ajoute_Ligne_Log(*programme, b); });
  EXPECT_EQ(Read("F9QZX.log"), others + Joined({b}));
  Event([&] { Insere_QSO_Log(*programme, Ligne("01/01/02", "10:00", "NEW")); });
  EXPECT_EQ(Read("F9QZX.log.garde-20030512-143456"), others + Joined({b}));
}

TEST_F(LogFile, AContactAfterAnOpenLineIsALineOfItsOwn) {
  const std::string a = Ligne("01/01/04", "10:00", "A"), b = Ligne("02/01/04", "10:00", "B");
  Start(a);
  Event([&] { Ajoute_Ligne_Log(*programme, b); });
  EXPECT_EQ(Read("F9QZX.log"), Joined({a, b}));
}

TEST_F(LogFile, AListThatCouldNotBeReadIsNotWrittenOverTheLog) {
  const std::string a = Ligne("01/01/04", "10:00", "A");
  auto& ddfm = Start(Joined({a}));
  for (const bool readable : {false, true}) {
    disk.FailOn("read F9QZX.log", Erreur::Disque_Non_Pret);
    EXPECT_EQ(ErrorOf([&] { Charge_Log(*programme, "F9QZX"); }), 71);
    EXPECT_EQ(ddfm.Liste_QSO.Count(), 0);
    if (readable) disk.Mend();
    EXPECT_EQ(ErrorOf([&] { Insere_QSO_Log(*programme, Ligne("01/01/03", "10:00", "NEW")); }), readable ? 0 : 71);
    EXPECT_EQ(Read("F9QZX.log"), readable ? Joined({Ligne("01/01/03", "10:00", "NEW"), a}) : Joined({a}));
  }
}

TEST_F(LogFile, ASaveThatCannotBeWrittenIsSeenWithTheFormStillFilled) {
  auto& ddfm = Start("");
  ddfm.Mnu_Auto_Oui.UserClick();
  Event([&] { ddfm.Indicatif_A.SetText("1ZZZ"); });
  Event([&] { ddfm.Indicatif_A.UserKey(kEntree); });
  Event([&] { ddfm.Mode_A.UserKey(kEntree); });
  Event([&] { ddfm.Activ_A.UserKey(kEntree); });
  for (TextField* field : {&ddfm.RSTE_A, &ddfm.RSTR_A, &ddfm.Prenom_A, &ddfm.QTH_A, &ddfm.Remarques_A})
    Event([&] { field->UserKey(kEntree); });
  ASSERT_TRUE(ddfm.Enregistrer.Enabled());

  disk.FailOn("append F9QZX.log", Erreur::Disque_Plein);
  std::string call_at_the_box;
  messages.OnBox = [&](const Box& box) {
    if (box.kind == Box::Kind::Fatal) call_at_the_box = ddfm.Indicatif_A.Text();
  };
  Event([&] { ddfm.Enregistrer.UserClick(); });
  EXPECT_EQ(messages.fatal_number, 61);
  EXPECT_EQ(call_at_the_box, "1ZZZ");
  EXPECT_EQ(ddfm.NB_Debug.Caption(), "7");
  EXPECT_EQ(Read("F9QZX.log"), "");
}

TEST(Calendar, TakesRealDatesAlone) {
  EXPECT_LT(Moment_QSO("31/12/99", "23:59"), Moment_QSO("01/01/00", "00:00"));
  EXPECT_LT(Moment_QSO("01/01/50", "12:00"), Moment_QSO("01/01/49", "12:00"));
  EXPECT_LT(Moment_QSO("29/02/04", "9:05"), Moment_QSO("01/03/04", ""));
  for (const char* date :
       {"31/02/07", "29/02/03", "12/13/03", "00/01/03", "12-05-03", "        ", "", "aa/bb/cc", "1/1"})
    EXPECT_THROW(Moment_QSO(date, "10:00"), Erreur_Execution) << date;
  for (const char* time : {"24:00", "10:60", "99:99", "1000", "ab:cd"})
    EXPECT_THROW(Moment_QSO("12/05/03", time), Erreur_Execution) << time;
}

TEST(LogLine, StandsInItsColumns) {
  Champs_QSO qso = Contact({"12/05/03", "F9QZX/PORTAB", "10:00", "10:05", "2a", "JN33BB", "144 Mhz", "PACKET7", "59",
                            "58", "DFCF 06001", "Zo\xE9"});
  qso.Distance_A = "12345";
  qso.Azimut_A = "360";
  qso.Activ_A = "12";
  qso.Remarques_A = "C. CHATEAU";
  const std::string line = Construit_Ligne(qso);
  ASSERT_EQ(line.size(), 199U);
  using namespace champs;
  const Champ fields[] = {Date_A, Indicatif_A, Debut_A,  Fin_A,   Depart_A,   Locator_A, Bande_A,
                          Mode_A, RSTE_A,      RSTR_A,   QTH_A,   Prenom_A,   Etat_QSL,  QSLE_A,
                          QSLR_A, Distance_A,  Azimut_A, Activ_A, Remarques_A};
  Lines texts;
  for (const Champ& field : fields) texts.emplace_back(Lit_Log(line, field));
  EXPECT_EQ(texts, (Lines{"12/05/03", "F9QZX/PORTAB", "10:00", "10:05", "2a", "JN33BB", "144 Mhz", "PACKET7", "59",
                          "58", "DFCF 06001", "Zo\xE9", "1", "", "", "12345", "360", "12", "C. CHATEAU"}));
  EXPECT_EQ(line.back(), '*');

  // Longer than its width uses the gap; beyond it there is no place.
  qso.Mode_A = "PACKET789";
  EXPECT_EQ(Construit_Ligne(qso).size(), 199U);
  qso.Mode_A = "PACKET7890";
  EXPECT_THROW(Construit_Ligne(qso), Erreur_Execution);
}

}  // namespace
}  // namespace vorelio::tests
