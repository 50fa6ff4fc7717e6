#include "cluster/cat_frames.h"

#include <gtest/gtest.h>

#include "support/error_of.h"

namespace vorelio::tests {
namespace {

TEST(CatFrames, FrequencyFromALine) {
  const Spot spot{"F9AAA       ", " 14195.0", "12-MAY 1234Z ", "ON9ZZ      ", ""};
  for (const Tri order : {Tri::QTR, Tri::Indicatif, Tri::QRG})
    EXPECT_EQ(Texte_Qrg(Ligne_De_Liste(spot, order), Colonne_Qrg(Famille_CAT::Yaesu, order)), "1419500");
  EXPECT_EQ(Texte_Qrg("", 1), "0");
  EXPECT_EQ(Texte_Qrg("  7040.5", 1), "7040.50");  // Eight characters: the point is one of the first seven.
}

TEST(CatFrames, Yaesu) {
  EXPECT_EQ(Qrg_Bcd(1419500), (Parametres_CAT{0x01, 0x41, 0x95, 0x00}));
  EXPECT_EQ(Qrg_Bcd(704050), (Parametres_CAT{0x00, 0x70, 0x40, 0x50}));
  EXPECT_EQ(Qrg_Bcd(14430000), (Parametres_CAT{0x14, 0x43, 0x00, 0x00}));
  EXPECT_EQ(Qrg_Bcd(999999999), (Parametres_CAT{0x99, 0x99, 0x99, 0x99}));
  EXPECT_EQ(ErrorOf([] { Qrg_Bcd(-1419500); }), 13);
}

TEST(CatFrames, Ft1000) {
  const struct {
    const char *from, *to;
    Parametres_CAT bytes;
    int digits;
  } cases[] = {{"1419500", "00591410", {0x00, 0x59, 0x14, 0x10}, 6},
               {"704050", "05040700", {0x05, 0x04, 0x07, 0x00}, 7},
               {"14430001", "10003441", {0x10, 0x00, 0x34, 0x41}, 8}};
  for (const auto& [from, to, bytes, digits] : cases) {
    std::string text = from;
    EXPECT_EQ(Qrg_Bcd_Inverse(text), bytes) << from;
    EXPECT_EQ(text, to);
    EXPECT_EQ(Chiffres_Du_Nombre(text), digits);
  }
  std::string words = "F9AAA  0";
  EXPECT_EQ(ErrorOf([&] { Qrg_Bcd_Inverse(words); }), 13);
}

TEST(CatFrames, Icom) {
  using Frames = std::array<std::string, 2>;
  const std::string head("\xFE\xFE\x58\0", 4);
  const std::string zero(1, '\0');
  EXPECT_EQ(Trames_Icom("&H58", "1419500"), (Frames{head + "\x05&H0&H20&H25&H80&H0\xFD", head + zero + "\x01\xFD"}));
  EXPECT_EQ(Trames_Icom("&H58", "704050")[1], head + zero + zero + "\xFD");
  // Another length has no mode byte.
  EXPECT_EQ(Trames_Icom("&H58", "70405")[1], head + zero + "\xFD");
  EXPECT_EQ(Trames_Icom("&H6E", "0")[0][2], '\x6E');
}

}  // namespace
}  // namespace vorelio::tests
