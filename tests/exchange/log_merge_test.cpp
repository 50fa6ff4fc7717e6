#include "exchange/log_merge.h"

#include <gtest/gtest.h>

#include "core/log_line.h"
#include "support/contact.h"

namespace vorelio::tests {
namespace {

/// "20 1005 A" is a contact with A on the first of May 2020, at five past ten.
std::string LineOf(const std::string& words) {
  return Construit_Ligne(
      Contact({"01/05/" + words.substr(0, 2), words.substr(8), words.substr(3, 2) + ":" + words.substr(5, 2)}));
}

std::vector<std::string> LinesOf(const std::vector<std::string>& words) {
  std::vector<std::string> lines;
  lines.reserve(words.size());
  for (const std::string& word : words) lines.push_back(word == "*" ? word : LineOf(word));
  return lines;
}

TEST(LogMerge, EachContactHasItsPlaceByDateAndStartTime) {
  const struct {
    const char* what;
    std::vector<std::string> log, added;
    std::string order;
  } cases[] = {
      {"nothing", {}, {}, ""},
      {"into an empty log, in order", {}, {"20 1009 B", "20 1005 A", "20 1009 C"}, "ABC"},
      {"nothing to add", {"20 1005 A", "20 1006 B"}, {}, "AB"},
      {"before, between, behind", {"20 1005 B", "20 1007 D"}, {"20 1008 E", "20 1006 C", "20 1004 A"}, "ABCDE"},
      {"behind the lines of its minute", {"20 1005 A", "20 1005 B", "20 1006 C"}, {"20 1005 X", "20 1005 Y"}, "ABXYC"},
      {"in both centuries", {"50 1005 A", "99 1005 C", "49 1005 E"}, {"98 1200 B", "00 0000 D"}, "ABCDE"},
      {"a line far ahead of its time pulls nothing to it",
       {"20 1005 A", "39 1000 F", "20 1006 B", "20 1008 D"},
       {"20 1007 C", "20 1009 E"},
       "AFBCDE"},
      {"nor one far behind",
       {"20 1005 A", "20 1007 C", "70 0000 P", "20 1008 D"},
       {"20 1006 B", "80 0000 Z"},
       "ZABCPD"},
      {"a block in the wrong order stays together",
       {"20 1001 A", "20 1002 B", "19 1009 R", "19 1008 S", "19 1007 T", "20 1003 C", "20 1005 E"},
       {"20 1004 D", "19 1006 Q"},
       "QABRSTCDE"},
      {"a line without a date goes with the one before it",
       {"20 1005 A", "*", "20 1006 B"},
       {"20 1005 X", "20 1004 Z"},
       "ZA*XB"},
      {"also at the top", {"*", "20 1006 B"}, {"20 1005 X"}, "*XB"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    std::string log, order;
    for (const std::string& line : LinesOf(c.log)) log += line + "\r\n";
    const auto added = LinesOf(c.added);
    std::vector<Ligne_A_Placer> placed;
    placed.reserve(added.size());
    for (const std::string& line : added)
      placed.push_back({Moment_QSO(Champ_Log(line, champs::Date_A), Champ_Log(line, champs::Debut_A)), line});
    Trie_Par_Moment(placed);
    const std::string merged = Log_Fusionne(log, placed, {});
    for (Lecteur_Lignes lines(merged); !lines.Fini();) {
      const auto line = lines.Suivante();
      order += line == "*" ? line : Lit_Log(line, champs::Indicatif_A);
    }
    EXPECT_EQ(order, c.order);
    EXPECT_EQ(merged.size(), log.size() + added.size() * 201);
  }
}

TEST(LogMerge, ChangedLinesStandWhereTheOldOnesStoodAndEveryLineIsEnded) {
  const auto lines = LinesOf({"20 1005 A", "20 1006 B", "20 1007 C"});
  const std::string log = lines[0] + "\n" + lines[1] + "\r\n" + lines[2];
  const std::string added = LineOf("20 1006 X");
  const std::string merged = Log_Fusionne(log, {{{2020, 5, 1, 10, 6}, added}}, {{1, "changed"}});
  EXPECT_EQ(merged, lines[0] + "\r\nchanged\r\n" + added + "\r\n" + lines[2] + "\r\n");
}

}  // namespace
}  // namespace vorelio::tests
