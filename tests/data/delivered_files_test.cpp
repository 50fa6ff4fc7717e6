#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "core/bands.h"
#include "core/text.h"
#include "tallies/prefix_tally.h"

namespace vorelio::tests {
namespace {

using namespace Sous_Programmes;

std::string Bytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The lines of a delivered file, each of which has to end in CR LF.
std::vector<std::string> Delivered(const std::string& name) {
  const std::string bytes = Bytes(std::filesystem::path(VORELIO_DATA_DIR) / name);
  std::vector<std::string> lines;
  for (std::size_t start = 0; start < bytes.size();) {
    const std::size_t end = bytes.find("\r\n", start);
    if (end == std::string::npos) {
      ADD_FAILURE() << name << ": the last line has no end";
      break;
    }
    lines.push_back(bytes.substr(start, end - start));
    EXPECT_EQ(lines.back().find_first_of("\r\n"), std::string::npos) << name << ": " << lines.back();
    start = end + 2;
  }
  return lines;
}

const std::string kNever(kBandes.size(), '0');

TEST(DeliveredFiles, TheLogAndTheDirectoryAreEmpty) {
  for (const char* name : {"FXXXX.log", "Nomenclature.txt"})
    EXPECT_EQ(Bytes(std::filesystem::path(VORELIO_DATA_DIR) / name), "") << name;
}

TEST(DeliveredFiles, EveryDepartmentHasItsLine) {
  std::vector<std::string> keys;
  for (const std::string& line : Delivered("FXXXX_Departement.txt")) {
    keys.push_back(line.substr(0, 2));
    EXPECT_EQ(line.substr(2, 19), " " + kNever + " ") << line;
    EXPECT_GT(line.size(), 22U) << line;
  }
  std::vector<std::string> expected;
  for (int n = 1; n <= 97; ++n) {
    if (n == 20) {
      expected.insert(expected.end(), {"2A", "2B"});
    } else {
      expected.push_back(Deux_Chiffres(n));
    }
  }
  EXPECT_EQ(keys, expected);
}

TEST(DeliveredFiles, EverySquareOfTheNineFieldsHasItsLine) {
  std::set<std::string> squares;
  for (const std::string& line : Delivered("FXXXX_Locator.txt")) {
    squares.insert(line.substr(0, 4));
    EXPECT_EQ(line.substr(4), " 00000000") << line;
  }
  EXPECT_EQ(squares.size(), 900U);
  for (const auto field : kChamps_Locator)
    for (int n = 0; n < 100; ++n) EXPECT_EQ(squares.count(std::string(field) + Deux_Chiffres(n)), 1U);
}

TEST(DeliveredFiles, NoPrefixIsHiddenByOneAboveIt) {
  std::set<std::string> above;
  std::set<std::string> french;
  for (const std::string& line : Delivered("FXXXX_Prefixe.txt")) {
    const std::string prefix(Prefixe_De(line));
    EXPECT_FALSE(prefix.empty()) << line;
    EXPECT_EQ(line.substr(0, 26), Complete(prefix, 7) + kNever + "  ") << line;
    const std::string country = line.substr(26);
    EXPECT_TRUE(!country.empty() && country.size() <= 35 && Rogne(country) == country) << line;
    for (std::size_t length = 1; length <= prefix.size(); ++length)
      EXPECT_EQ(above.count(prefix.substr(0, length)), 0U) << prefix << " never gets its turn";
    above.insert(prefix);
    if (country == "France" || country == "Corse") french.insert(prefix);
  }
  for (const std::string& prefix : french) EXPECT_TRUE(Prefixe_Francais(prefix)) << prefix;
  EXPECT_EQ(french.size(), 11U);
}

TEST(DeliveredFiles, CallsignsFindTheirCountry) {
  const std::vector<std::string> table = Delivered("FXXXX_Prefixe.txt");
  std::ifstream calls(std::filesystem::path(VORELIO_DATA_DIR) / "../tests/data/callsigns.tsv");
  ASSERT_TRUE(calls);
  int looked_up = 0;
  for (std::string line; std::getline(calls, line);) {
    if (line.empty() || line[0] == '#') continue;
    const std::size_t tab = line.find('\t');
    const std::string call = line.substr(0, tab);
    std::string country;
    for (const std::string& row : table) {
      if (!call.starts_with(Prefixe_De(row))) continue;
      country = Vers_Utf8(Pays_De(row));
      break;
    }
    EXPECT_EQ(country, line.substr(tab + 1)) << call;
    ++looked_up;
  }
  EXPECT_GT(looked_up, 3000);
}

}  // namespace
}  // namespace vorelio::tests
