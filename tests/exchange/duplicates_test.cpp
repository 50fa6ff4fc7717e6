#include "exchange/duplicates.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "support/contact.h"

namespace vorelio::tests {
namespace {

std::string Line(const std::string& start, const std::string& call = "F6ABC", const std::string& mode = "SSB",
                 const std::string& band = "14 Mhz", const std::string& date = "12/05/03") {
  return Construit_Ligne(Contact({date, call, start, "", "", "", band, mode}));
}

TEST(Duplicates, WhatMakesOne) {
  const std::pair<std::string, bool> others[] = {
      {Line("12:30"), true},
      {Line("12:39"), true},
      {Line("12:21"), true},
      {Line("12:40"), false},
      {Line("12:20"), false},
      {Line("12:30", "f6abc", "ssb", "14 MHZ"), true},
      {Line("12:30", "F6ABC/P"), false},
      {Line("12:30", "F6ABC", "CW"), false},
      {Line("12:30", "F6ABC", "SSB", "7.0 Mhz"), false},
      {Line("12:30", "F6ABC", "SSB", "14 Mhz", "13/05/03"), false},
      {Line(""), false},
  };
  for (const auto& [other, expected] : others) {
    EXPECT_EQ(Est_Double(Line("12:30"), other), expected) << other;
    EXPECT_EQ(Est_Double(other, Line("12:30")), expected) << other;
  }
  EXPECT_TRUE(Est_Double(Line(""), Line("")));
  EXPECT_FALSE(Est_Double(Line("23:58"), Line("00:02", "F6ABC", "SSB", "14 Mhz", "13/05/03")));
  EXPECT_TRUE(Est_Double("", ""));
}

TEST(Duplicates, TheIndexFindsTheNearest) {
  std::mt19937 random(20030512);
  std::vector<std::string> lines;
  for (int i = 0; i < 600; ++i) {
    const int minute = static_cast<int>(random() % 120);
    lines.push_back(Line(Deux_Chiffres(minute / 60 * 23) + ":" + Deux_Chiffres(minute % 60),
                         random() % 2 == 0 ? "F6ABC" : "f6abd", random() % 2 == 0 ? "SSB" : "CW"));
  }
  lines.push_back(Line("oops"));
  Index_Doubles index;
  for (std::size_t n = 0; n < lines.size(); n += 3) index.Ajoute(lines[n]);
  const auto minute = [](const std::string& line) {
    return Valeur(line.substr(22, 2)) * 60 + Valeur(line.substr(25, 2));
  };
  for (const std::string& line : lines) {
    std::optional<std::size_t> nearest;
    double apart = 10;
    for (std::size_t n = 0; n < lines.size(); n += 3)
      if (Est_Double(line, lines[n]) && std::abs(minute(line) - minute(lines[n])) < apart) {
        apart = std::abs(minute(line) - minute(lines[n]));
        nearest = n / 3;
      }
    const auto found = index.Cherche(line);
    ASSERT_EQ(found.has_value(), nearest.has_value()) << line;
    if (found) {
      EXPECT_EQ(std::abs(minute(line) - minute(lines[*found * 3])), apart) << line;
    }
  }
}

}  // namespace
}  // namespace vorelio::tests
