#include "pilot/pilot.h"

#include <gtest/gtest.h>

#include <sstream>

#include "pilot/bench.h"

namespace vorelio::pilot {
namespace {

/// What the pilot prints about a scenario; empty if everything held.
std::string Says(const std::string& scenario) {
  std::ostringstream out;
  const bool held = RunText("t.scn", scenario, MakeFormsWay, StartBench, out);
  EXPECT_EQ(held, out.str().empty()) << scenario;
  return out.str();
}

struct Case {
  const char* scenario;
  const char* says;
};

void Check(std::initializer_list<Case> cases) {
  for (const Case& each : cases) EXPECT_EQ(Says(each.scenario), each.says) << each.scenario;
}

TEST(Pilot, ScenariosThatHold) {
  for (const char* scenario : kScenariosThatHold) EXPECT_EQ(Says(scenario), "") << scenario;
}

TEST(Pilot, ModalWindowReceivesWhatFollows) {
  Check({{"start\nclick Ouvrir\nexpect Essai open\nclick Essai.Valider\nexpect message contains nom\n"
          "type Essai.Nom Jean\nexpect Vu caption rien\nclick Essai.Valider\nexpect Essai closed\n"
          "expect Vu caption \"fermé\"",
          ""},
         {"start\nclick Ouvrir\nclose Essai\nexpect Vu caption \"fermé\"", ""},
         // The main window stays locked; the scenario may end before the modal window does.
         {"start\nclick Ouvrir\nclick Demander\nexpect Vu caption rien", ""},
         {"start\nclick Ouvrir\nclick Demander\nexpect question \"Vraiment ?\"",
          "t.scn:4: expected question \"Vraiment ?\", found none\n"
          "t.scn:3: note: Demander is locked behind the window Essai, nothing was clicked\n"},
         {"start\nclick Ouvrir\nclose Banc\nexpect ended\nexpect Essai closed", ""},
         {"start\nclick Ouvrir\ntype Essai.Nom x\nexpect Essai.Nom text y\nclose Essai",
          "t.scn:4: expected Essai.Nom text \"y\", found \"x\"\n"}});
}

TEST(Pilot, EndsOfTheProgram) {
  Check(
      {{"start\nclick Attendre\nclick Demander\nclose Banc\nexpect ended\nstart\nexpect Banc open\nexpect Vu text rien",
        "t.scn:3: expected an answer queued for the question \"Vraiment ?\", found none\n"},
       {"start\nclick Attendre\ntimer Minuteur\nclose Banc\nexpect ended\nstart\nexpect Banc open\nexpect Vu text rien",
        ""},
       {"start\nclick Casser\nexpect fatal 53\nexpect ended\nexpect Banc closed", ""},
       {"start\nclick Casser\nexpect fatal 5",
        "t.scn:3: expected run-time error 5, found 53: \"Erreur d'exécution '53' : Fichier introuvable\"\n"},
       {"start\nclick Casser",
        "t.scn:2: expected no run-time error, found 53: \"Erreur d'exécution '53' : Fichier introuvable\"\n"},
       {"start\nexpect ended", "t.scn:2: expected the program to have ended, found it running\n"},
       {"start\nstart", "t.scn:2: the program is running already\n"},
       {"click Demander", "t.scn:1: the program hasn't been started\n"}});
}

TEST(Pilot, FailuresSayWhatWasFound) {
  Check({{"start\ntype Appel \"a\\r\"\ntype Appel b\nexpect Vu text B\nexpect Vu text C",
          "t.scn:4: expected Vu text \"B\", found \"A\"\n"
          "t.scn:3: note: Appel is disabled, nothing was typed\n"},
         {"start\ntype Appel \"a\\rb\"\nexpect Appel text AB",
          "t.scn:3: expected Appel text \"AB\", found \"A\"\n"
          "t.scn:2: note: Appel is disabled, nothing was typed from \"b\" on\n"},
         {"start\nexpect Appel enabled no", "t.scn:2: expected Appel enabled no, found yes\n"},
         {"start\nexpect Appel colour c0ffc0", "t.scn:2: expected Appel colour C0FFC0, found window\n"},
         {"start\nexpect Vu colour window", "t.scn:2: expected Vu colour window, found 8000000F\n"},
         {"start\nexpect Vu index 0", "t.scn:2: Vu has no property index\n"},
         {"start\nexpect Vu size 0", "t.scn:2: unknown property size\n"},
         {"start\nexpect Liste item 3 x", "t.scn:2: expected Liste item 3 \"x\", found 3 rows\n"},
         {"start\nexpect Liste item 1 contains \"a\\\"\"",
          "t.scn:2: expected Liste item 1 containing \"a\\\"\", found \"b\"\n"},
         {"start\nselect Bande 3", "t.scn:2: expected row 3 in Bande, found 3 rows\n"},
         {"start\nselect Bande \"3\"", "t.scn:2: expected a row \"3\" in Bande, found none among 3\n"},
         {"start\nexpect focus Bande", "t.scn:2: expected focus on Bande, found it on Banc.Appel\n"},
         {"start\nexpect Banc closed", "t.scn:2: expected Banc closed, found open\n"},
         {"start\nexpect Essai open", "t.scn:2: expected Essai open, found closed\n"},
         {"start\nexpect Banc title Banc", "t.scn:2: expected Banc title \"Banc\", found \"Banc d'été\"\n"},
         {"start\nmenu Menu_Message", "t.scn:2: expected no message, found \"du menu\"\n"},
         {"start\nmenu Menu_Message\nexpect message \"du Menu\"",
          "t.scn:3: expected message \"du Menu\", found \"du menu\"\n"},
         {"start\nmenu Menu_Message\nexpect Vu text x",
          "t.scn:3: expected Vu text \"x\", found \"rien\"\nt.scn:2: note: the message \"du menu\" was shown\n"},
         {"start\nclick Demander\nexpect Vu caption non",
          "t.scn:2: expected an answer queued for the question \"Vraiment ?\", found none\n"}});
}

TEST(Pilot, WhatMakesNoSense) {
  Check({{"start\nfrobnicate", "t.scn:2: unknown command frobnicate\n"},
         {"start\nclick Rien", "t.scn:2: expected a control Rien, found none of that name\n"},
         {"start\nclick Essai.Nom", "t.scn:2: expected a control Essai.Nom, found no open window Essai\n"},
         {"start\nclose Essai", "t.scn:2: expected an open window Essai, found none\n"},
         {"start\ntype Vu x", "t.scn:2: Vu can't be typed into\n"},
         {"start\ntype Appel", "t.scn:2: the command lacks its text\n"},
         {"start now", "t.scn:1: one word too many: \"now\"\n"},
         {"start\n| x", "t.scn:1: the command takes no | lines\n"},
         {"start\ntick Liste 0", "t.scn:2: Liste is no list with check boxes\n"},
         {"clock noon +02:00", "t.scn:1: expected a time like \"2003-05-12 12:34:56\" +02:00, found \"noon\" +02:00\n"},
         {"clock \"2003-02-29 00:00:00\" +02:00",
          "t.scn:1: expected a time like \"2003-05-12 12:34:56\" +02:00, found \"2003-02-29 00:00:00\" +02:00\n"},
         {"answer perhaps", "t.scn:1: expected yes, no, ok or cancel, found \"perhaps\"\n"},
         {"raw a.txt \"Ω\"", "t.scn:1: \"Ω\" has a character that the program's files can't hold\n"},
         {"type \"x", "t.scn:1: a text without its closing quote\n"}});
}

TEST(Pilot, FilesAndSettings) {
  Check(
      {{"write d/a.txt\n| été\n|\nexpect file d/a.txt is\n| été\n|\nexpect file d/a.txt size 7\n"
        "expect file d/a.txt lines 2\nexpect file d/a.txt line 1 \"été\"\nexpect file d/a.txt line 1 contains t\n"
        "expect file d/a.txt column 2 2 line 1 \"té\"\nremove d/a.txt\nexpect file d/a.txt absent",
        ""},
       {"raw a.txt \"x\\ny\"\nexpect file a.txt exists\nexpect file a.txt lines 2\nexpect file a.txt is\n| x\n| y",
        "t.scn:4: expected file a.txt with CR LF at the end of each line, found the same words with other line ends\n"},
       {"write a.txt\n| {dir}{/}b\nexpect file {dir}{/}a.txt line 1 \"{dir}{/}b\"", ""},
       {"expect file a.txt exists", "t.scn:1: expected file a.txt to exist, found no such file\n"},
       {"expect file a.txt line 1 x", "t.scn:1: expected file a.txt line 1 \"x\", found no such file\n"},
       {"write a.txt\n| x\nexpect file a.txt line 2 x", "t.scn:3: expected file a.txt line 2 \"x\", found 1 line\n"},
       {"write a.txt\n| x\nexpect file a.txt size 4", "t.scn:3: expected file a.txt size 4, found 3 bytes\n"},
       {"write a.txt\n| x\nexpect file a.txt absent", "t.scn:3: expected file a.txt absent, found it with 3 bytes\n"},
       {"write a.txt\n| x\n| y\nexpect file a.txt is\n| x\n| z",
        "t.scn:4: expected file a.txt line 2 \"z\", found \"y\"\n"},
       {"write a.txt\n| x\nexpect file a.txt is", "t.scn:3: expected file a.txt with 0 lines, found 1 line\n"},
       {"setting DDFM \"Setup \" Cle Valeur\nexpect setting DDFM \"Setup \" Cle Valeur\nexpect setting DDFM Setup Cle "
        "absent",
        ""},
       {"setting A B C absent\nexpect setting A B C absent",
        "t.scn:2: expected setting \"A\" \"B\" \"C\" absent, found \"absent\"\n"},
       {"expect setting A B C \"\"", "t.scn:1: expected setting \"A\" \"B\" \"C\" \"\", found none\n"}});
}

TEST(Pilot, LogLines) {
  Check({{"qso a.log Date_A=\"12/05/03\" Indicatif_A=F6ABC Bande_A=\"14 Mhz\" Etat=4 QSLE_A=01/06/03 QSLR_A=02/06/03 "
          "Activ_A=2 Remarques_A=\"Château\"\nqso a.log Indicatif_A=F5XYZ\n"
          "expect file a.log size 402\nexpect file a.log column 1 22 line 1 \"12/05/03  F6ABC       \"\n"
          "expect file a.log column 50 8 line 1 \"14 Mhz  \"\nexpect file a.log column 135 1 line 1 4\n"
          "expect file a.log column 137 8 line 1 \"01/06/03\"\nexpect file a.log column 146 8 line 1 \"02/06/03\"\n"
          "expect file a.log column 165 2 line 1 \"2 \"\nexpect file a.log column 169 8 line 1 \"Château \"\n"
          "expect file a.log column 135 1 line 2 1\nexpect file a.log column 165 2 line 2 \"0 \"",
          ""},
         {"qso a.log Call=F6ABC", "t.scn:1: expected a field of a contact, found Call\n"},
         {"qso a.log F6ABC", "t.scn:1: expected a field like Bande_A=\"14 Mhz\", found \"F6ABC\"\n"},
         {"qso a.log Etat=12", "t.scn:1: \"12\" is too long for Etat\n"},
         {"qso a.log Indicatif_A=F6ABCDEFGHIJKL", "t.scn:1: a field is too long for the log line\n"}});
}

TEST(Pilot, ShowPrintsWithoutJudging) {
  std::ostringstream out;
  EXPECT_TRUE(RunText("t.scn",
                      "write a.txt\n| é\nshow file a.txt\nstart\nshow Vu caption\nshow Appel colour\n"
                      "menu Menu_Message\nshow messages\nexpect message \"du menu\"",
                      MakeFormsWay, StartBench, out));
  EXPECT_EQ(out.str(),
            "t.scn:3: file a.txt: 1 line\nt.scn:3: | é\nt.scn:5: Vu caption \"rien\"\nt.scn:6: Appel colour window\n"
            "t.scn:8: message \"du menu\", not expected yet\n");
}

TEST(Pilot, ScoreIsTheLastLine) {
  doubles::ScratchFolder folder;
  folder.Write("good.scn", "start\nexpect Banc open\n");
  folder.Write("bad.scn", "start\nexpect Banc closed\n");
  std::ostringstream out;
  const Score score = RunFiles({folder.File("good.scn"), folder.File("bad.scn"), folder.File("none.scn")}, MakeFormsWay,
                               StartBench, out);
  EXPECT_EQ(score.passed, 1);
  EXPECT_EQ(score.failed, 2);
  EXPECT_EQ(out.str(), folder.File("bad.scn") + ":2: expected Banc closed, found open\n" + folder.File("none.scn") +
                           ":0: expected a scenario, found no such file\n1 passed, 2 failed\n");
}

}  // namespace
}  // namespace vorelio::pilot
