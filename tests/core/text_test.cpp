#include "core/text.h"

#include <gtest/gtest.h>

#include "support/error_of.h"

namespace vorelio {
namespace {

using tests::ErrorOf;

TEST(Text, ComesFromUtf8AndGoesBack) {
  EXPECT_EQ("Départements €"_t, "D\xE9partements \x80");
  for (int i = 1; i < 256; ++i) {
    const std::string one(1, static_cast<char>(i));
    EXPECT_EQ(De_Utf8(Vers_Utf8(one)), one) << i;
  }
  // What the set can't hold, and what isn't UTF-8: overlong, cut, surrogate, beyond Unicode.
  const char* const cases[] = {"\xC5\x81", "\xC0\x80", "\xE2\x82", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF", "\xC3"};
  for (const char* text : cases) {
    EXPECT_FALSE(De_Utf8_Exact(text)) << text;
    EXPECT_EQ(De_Utf8(text).front(), '?') << text;
  }
  EXPECT_EQ(De_Utf8("a\xC5\x81z"), "a?z");
  EXPECT_EQ(De_Utf8_Exact("Zo\xC3\xA9"), "Zo\xE9");
}

TEST(Text, IsCutAndFilledByColumns) {
  const std::string text = "ABCDEF";
  EXPECT_EQ(Coupe(text, 1, 2), "AB");
  EXPECT_EQ(Coupe(text, 5, 10), "EF");
  EXPECT_EQ(Coupe(text, 7, 3), "");
  EXPECT_EQ(Coupe(text, 3), "CDEF");
  EXPECT_EQ(Fin(text, 2), "EF");
  EXPECT_EQ(Fin(text, 20), "ABCDEF");
  EXPECT_EQ(ErrorOf([&] { Coupe(text, 0, 1); }), 5);
  const std::string padded = "  \tA ";
  EXPECT_EQ(Rogne(padded), "\tA");
  EXPECT_EQ(Complete("AB", 4), "AB  ");
  EXPECT_EQ(Complete("ABCDE", 4, 2), "ABCDE ");
  EXPECT_EQ(ErrorOf([] { Complete("ABCDEFG", 4, 2); }), 5);
  EXPECT_EQ(Complete_Gauche("42", 5), "   42");
}

TEST(Text, ReadsNumbers) {
  const struct {
    const char* text;
    double head;
    int strict_error;
  } cases[] = {{"12", 12, 0},     {"  7 ", 7, 0},  {"-3", -3, 0},  {"+5", 5, 0},    {"1.5", 1.5, 0}, {".5", .5, 0},
               {"12abc", 12, 13}, {"abc", 0, 13},  {"", 0, 13},    {"inf", 0, 13},  {"nan", 0, 13},  {"--3", 0, 13},
               {"+-3", 0, 13},    {"0x10", 0, 13}, {"1 2", 1, 13}, {"True", 0, 13}, {"-", 0, 13},    {"1e3", 1000, 0}};
  for (const auto& c : cases) {
    EXPECT_EQ(Valeur(c.text), c.head) << c.text;
    EXPECT_EQ(ErrorOf([&] { Nombre(c.text); }), c.strict_error) << c.text;
  }
  EXPECT_EQ(Nombre_Entier("2.5"), 2);
  EXPECT_EQ(Nombre_Entier("3.5"), 4);
  EXPECT_EQ(ErrorOf([] { Nombre_Entier("99999999999"); }), 6);
  EXPECT_EQ(ErrorOf([] { Valeur("1e999"); }), 6);
  EXPECT_EQ(Texte_Nombre(99999), "99999");
  EXPECT_EQ(Texte_Nombre(100000), "100000");
  EXPECT_EQ(Texte_Nombre(0.5), "0.5");
  EXPECT_EQ(Texte_Nombre_Blanc(0), " 0");
  EXPECT_EQ(Texte_Nombre_Blanc(-1), "-1");
  EXPECT_TRUE(Booleen("True") && Booleen(" true ") && !Booleen("1") && !Booleen("Vrai") && !Booleen(""));
}

TEST(Text, HasCapitalsOverTheWholeSet) {
  EXPECT_EQ(Majuscules("zoé çœžšÿ ÷ß"_t), "ZOÉ ÇŒŽŠŸ ÷ß"_t);
  EXPECT_EQ(Touche_Majuscule('q'), 'Q');
  EXPECT_EQ(Touche_Majuscule(0xE9), 0xE9);
}

TEST(Text, NamesAFileThatStaysInItsFolder) {
  const std::pair<std::string, std::string> cases[] = {{"F6ABC", "F6ABC"},
                                                       {"F5XYZ/P", "F5XYZ_P"},
                                                       {"", ""},
                                                       {"../EVIL", "_._EVIL"},
                                                       {"..\\EVIL", "_._EVIL"},
                                                       {".HIDDEN", "_HIDDEN"},
                                                       {"C:F6ABC", "C_F6ABC"},
                                                       {std::string("F6\0A", 4), "F6_A"},
                                                       {"F6\r\nA\t", "F6__A_"},
                                                       {"ZOÉ.1"_t, "ZOÉ.1"_t}};
  for (const auto& [text, name] : cases) EXPECT_EQ(Forme_Fichier(text), name);
}

TEST(Text, IsReadByLinesAndByRecords) {
  const std::string lines = "one\r\ntwo\n\r\nlast\r";
  Lecteur_Lignes reader(lines);
  for (const char* expected : {"one", "two", "", "last\r"}) EXPECT_EQ(reader.Suivante(), expected);
  EXPECT_TRUE(reader.Fini());
  EXPECT_EQ(ErrorOf([&] { reader.Suivante(); }), 62);

  const std::string records = "F6ABC,06\r\nF5XYZ      \n,x";
  Lecteur_Champs fields(records);
  for (const char* expected : {"F6ABC", "06", "F5XYZ      ", "", "x"}) EXPECT_EQ(fields.Suivant(), expected);
  EXPECT_TRUE(fields.Fini());
}

}  // namespace
}  // namespace vorelio
