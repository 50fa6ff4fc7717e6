#include "pilot/scenario.h"

#include <gtest/gtest.h>

namespace vorelio::pilot {
namespace {

std::string Joined(const std::vector<Word>& words) {
  std::string joined;
  for (const Word& word : words) joined += (word.quoted ? "'" : "[") + word.text + (word.quoted ? "'" : "]");
  return joined;
}

TEST(ScenarioWords, BareWordsAndTexts) {
  const std::pair<const char*, const char*> cases[] = {
      {"start", "[start]"},
      {"  type\tDpt(57)  12 ", "[type][Dpt(57)][12]"},
      {R"(type Indicatif_A "F6 ABC\r")", "[type][Indicatif_A]'F6 ABC\r'"},
      {R"("a\"b\\c\n" "")", "'a\"b\\c\n'''"},
      {R"(Bande_A="14 Mhz" Etat=2)", "'Bande_A=14 Mhz'[Etat=2]"},
      {R"(C:\dir)", "[C:\\dir]"},
  };
  for (const auto& [line, words] : cases) EXPECT_EQ(Joined(SplitWords(line)), words) << line;
}

TEST(Scenario, CommandsWithTheirLinesAndBlocks) {
  const Scenario scenario =
      ParseScenario("x.scn",
                    "\xEF\xBB\xBF# a comment\r\n\r\nwrite a.txt\r\n| one \r\n|\r\n|  \"two\\\"\r\n"
                    "  # another\nstart");
  ASSERT_EQ(scenario.commands.size(), 2U);
  EXPECT_EQ(scenario.commands[0].line, 3);
  EXPECT_EQ(scenario.commands[0].block, (std::vector<std::string>{"one ", "", " \"two\\\""}));
  EXPECT_EQ(scenario.commands[1].line, 8);
  EXPECT_TRUE(scenario.commands[1].block.empty());
}

TEST(Scenario, WhatCantBeReadNamesItsLine) {
  const std::tuple<const char*, int, const char*> cases[] = {
      {"start\ntype A \"open", 2, "a text without its closing quote"},
      {"type A \"x\\t\"", 1, "unknown escape \\t"},
      {"| a line", 1, "a line of a file without its command"}};
  for (const auto& [text, line, says] : cases) {
    try {
      ParseScenario("x.scn", text);
      FAIL() << text;
    } catch (const ParseError& error) {
      EXPECT_EQ(error.line, line);
      EXPECT_EQ(error.text, says);
    }
  }
}

}  // namespace
}  // namespace vorelio::pilot
