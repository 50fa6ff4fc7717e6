#include "cluster/cluster_page.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "cluster/made_up_page.h"
#include "core/errors.h"

namespace vorelio::tests {
namespace {

/// The list lines of a page, or "error N" after those that came before it.
std::vector<std::string> Lines(std::string_view page, Tri order = Tri::QTR) {
  std::vector<std::string> lines;
  const std::string text = Fins_De_Ligne(Premiere_Ligne(Majuscules(page)));
  try {
    Lecteur_Spots reader(text);
    while (const auto spot = reader.Suivant()) lines.push_back(Ligne_De_Liste(*spot, order));
  } catch (const Erreur_Execution& error) {
    lines.push_back("error " + std::to_string(error.Numero()));
  }
  return lines;
}

using Words = std::vector<std::string>;

TEST(ClusterPage, ALineForEachOrder) {
  const std::string page = MadeUpPage({{}});
  EXPECT_EQ(Lines(page, Tri::QTR), Words{" 12-MAY 1234Z  F9AAA         14195.0 ON9ZZ       CQ"});
  EXPECT_EQ(Lines(page, Tri::Indicatif), Words{" F9AAA         14195.0 12-MAY 1234Z  ON9ZZ       CQ"});
  EXPECT_EQ(Lines(page, Tri::QRG), Words{"  14195.0 F9AAA        12-MAY 1234Z  ON9ZZ       CQ"});
}

TEST(ClusterPage, Widths) {
  const auto one = [](const MadeUpRow& row) { return Lines(MadeUpPage({row})).at(0); };
  EXPECT_EQ(one({.dx = "VK9ABCDEFGHIJ"}), " 12-MAY 1234Z  VK9ABCDEFGHI  14195.0 ON9ZZ       CQ");
  EXPECT_EQ(one({.qrg = "144300.0"}), " 12-MAY 1234Z  F9AAA        144300.0 ON9ZZ       CQ");
  EXPECT_EQ(one({.qrg = "1296200.0"}), "error 5");
  EXPECT_EQ(one({.spotter = "ON9ABCDEFGH"}), " 12-MAY 1234Z  F9AAA         14195.0 ON9ABCDEFGH CQ");
  EXPECT_EQ(one({.spotter = "ON9ABCDEFGHI"}), "error 5");
  // Date and remarks come as they are, of whatever length.
  EXPECT_EQ(one({.date = "x", .remarks = ""}), " X F9AAA         14195.0 ON9ZZ       ");
  EXPECT_EQ(one({.remarks = "73 <b>de</b> é</a>"}).substr(49), "73 <B>DE</B> \xC3\xA9</A>");
}

TEST(ClusterPage, Marks) {
  const auto with = [](const std::string& from, const std::string& to) {
    std::string page = MadeUpPage({{}});
    return Lines(page.replace(page.find(from), from.size(), to)).at(0);
  };
  // Without its first mark a field starts in the eighth or seventh column.
  EXPECT_EQ(with("_blank", "_top"), " 12-MAY 1234Z  HREF=\"X\" TAR  14195.0 ON9ZZ       CQ");
  EXPECT_EQ(with("&nbsp;</td>\n<td align=\"left\"> 12", "</td>\n<td align=\"left\"> 12"), "error 5");
  EXPECT_EQ(with("</a></td>\n<td align=\"right", "</td>\n<td align=\"right"), "error 5");
  EXPECT_EQ(with("cq</td>", "cq"), "error 5");
}

TEST(ClusterPage, WhatATableIs) {
  const std::string page = MadeUpPage({{}, {.dx = "F9BBB"}});
  EXPECT_EQ(Lines(page).size(), 2U);
  EXPECT_EQ(Lines(page + page).size(), 2U);
  const Words without = {MadeUpPage({}), "<html>\n<p>none</p>\n", "", "</table>",
                         "<table border=1>\n" + page.substr(15)};
  for (const std::string& other : without) EXPECT_EQ(Lines(other), Words{}) << other;
  // A page with CR LF is read to the first of them.
  std::string crlf = page;
  for (std::size_t at = 0; (at = crlf.find('\n', at)) != std::string::npos; at += 2) crlf.insert(at, "\r");
  EXPECT_EQ(Lines(crlf), Words{});
}

TEST(ClusterPage, CutAnywhere) {
  const std::string page = MadeUpPage({{}, {.dx = "F9BBB"}});
  // Where the seven lines of the heading, the first row and the second one end.
  const std::size_t ends[] = {page.find("<tr>\n<td>"), page.rfind("<tr>"), page.rfind("</table>")};
  for (std::size_t cut = 0; cut < page.size(); ++cut) {
    const Words lines = Lines(page.substr(0, cut));
    const bool failed = !lines.empty() && lines.back() == "error 62";
    const bool marks_missing = !lines.empty() && lines.back() == "error 5";
    // In its seventh line a row is whole, and where that line has no end nothing begins another row.
    const bool whole =
        std::any_of(std::begin(ends), std::end(ends), [&](std::size_t end) { return cut + 6 >= end && cut < end; });
    const bool silent = whole || cut < page.find("<table>") + 7 || cut >= ends[2] + 8;
    EXPECT_EQ(!failed && !marks_missing, silent) << cut;
    const std::size_t rows = lines.size() - (silent ? 0 : 1);
    EXPECT_EQ(rows, cut + 6 < ends[1] ? 0U : cut + 6 < ends[2] ? 1U : 2U) << cut;
  }
}

TEST(ClusterPage, Paths) {
  EXPECT_EQ(Chemin_De_Page(0), "/dxc/top_250_HF.html");
  EXPECT_EQ(Chemin_De_Page(3), "/dxc/top_50_7_MHz.html");
  EXPECT_EQ(Chemin_De_Page(12), "/dxc/top_250_VHF.html");
  EXPECT_THROW(Chemin_De_Page(-1), Erreur_Execution);
  EXPECT_EQ(Adresse_Complete("  site.example/ "), "http://site.example");
  EXPECT_EQ(Adresse_Complete("https://site.example//"), "https://site.example");
  EXPECT_EQ(Adresse_Complete(" / "), "");
}

}  // namespace
}  // namespace vorelio::tests
