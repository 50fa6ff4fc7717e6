#include "exchange/edi_record.h"

#include <gtest/gtest.h>

#include "core/log_line.h"
#include "core/text.h"

namespace vorelio::tests {
namespace {

TEST(EdiRecord, MakesALine) {
  const auto read = Ligne_EDI("030512;1234;F9XKV;1;59;001;59;002;;JN33BB;", "144144");
  EXPECT_FALSE(read.erreur);
  EXPECT_EQ(read.ligne, "12/05/03  F9XKV       12:34  12:34       JN33BB  144144    SSB      59001     59002     " +
                            Blancs(46) + "1" + Blancs(29) + "0" + Blancs(33) + "*");
  // What follows the locator, as contest logs have it, counts for nothing.
  EXPECT_EQ(Ligne_EDI("030512;1234;F9XKV;1;59;001;59;002;;JN33BB;121;;N;;", "144144").ligne, read.ligne);
}

TEST(EdiRecord, FieldsOneByOne) {
  struct {
    const char *record, *band;
    Champ field;
    const char* columns;
  } const cases[] = {
      {"51;;        ;;;;;;;;", "", champs::Date_A, "  /;;/51  "},
      {"030512;1234;OK1KIR/P/QRP;2;;;;;;;", "", champs::Indicatif_A, "OK1KIR/P/QRP"},
      {"030512;1234; F9XKV;2;;;;;;;", "", champs::Indicatif_A, " F9XKV      "},
      {"030512;1234;;6;;;;;;;", "14CM14CM", champs::Bande_A, "14CM14CM  "},
      {"030512;1234;;6;;;;;;;", "", champs::Bande_A, "          "},
      {"030512;1234;;6;599;0012345;;;;;", "", champs::RSTE_A, "5990012345"},
      {"030512;1234;;6;;;;12;x;;", "", champs::RSTR_A, "12        "},
      {"030512;1234;;6;;;;;x;JN33BB12;", "", champs::Locator_A, "JN33BB12"},
  };
  for (const auto& c : cases) {
    const std::string line = Ligne_EDI(c.record, c.band).ligne;
    EXPECT_EQ(Coupe(line, c.field.colonne, c.field.largeur + c.field.ecart), c.columns) << c.record;
  }
}

TEST(EdiRecord, Modes) {
  // Whatever isn't a number counts as zero, as does an empty code.
  const std::pair<const char*, const char*> cases[] = {
      {"0", "AUTRE"}, {"1", "SSB"},     {"2", "CW"},   {"3", "CW"},   {"4", "CW"},  {"5", "AM"},
      {"6", "FM"},    {"7", "RTTY"},    {"8", "SSTV"}, {"9", "ATV"},  {"10", "10"}, {"-1", "-1"},
      {"2.5", "2.5"}, {"SSB", "AUTRE"}, {"", "AUTRE"}, {" 1", "SSB"}, {"06", "FM"}, {"1x", "SSB"}};
  for (const auto& [code, mode] : cases) EXPECT_EQ(Mode_EDI(code), mode) << code;
}

TEST(EdiRecord, WhatStopsTheImport) {
  const std::pair<const char*, const char*> cases[] = {
      {"030512;1234;F9XKV;1;59;001;59;002;;JN33BB", ""},
      {"030512;1234;F9XKV;1;59;001;59;002", ""},
      {"030512;1234", ""},
      {"[END;logger]", ""},
      {"030512;1234;F9XKV/PORTABL;1;59;001;59;002;;JN33BB;", ""},
      {"030512;1234;F9XKV;1;599;12345678;59;002;;JN33BB;", ""},
      {"030512;1234;F9XKV;1;59;001;599;12345678;;JN33BB;", ""},
      {"030512;1234;F9XKV;1;59;001;59;002;;JN33BB123;", ""},
      {"030512;1234;F9XKV;1234567890;59;001;59;002;;JN33BB;", ""},
      {"030512;1234;F9XKV;1;59;001;59;002;;JN33BB;", "144 MHz144 MHz"},
  };
  for (const auto& [record, band] : cases)
    EXPECT_EQ(Ligne_EDI(record, band).erreur, Erreur::Argument_Invalide) << record;
}

TEST(EdiFile, FindsBandMomentAndRecords) {
  struct {
    const char *text, *band, *date, *time;
    std::vector<std::string_view> records;
  } const cases[] = {
      {"[REG1TEST;1]\r\nTName=Rallye\r\nTDate=20030510;20030511\r\nPCall=F9QZX\r\nPBand=144\r\n[Remarks]\r\nBeau "
       "temps\r\n"
       "[QSORecords;2]\r\n030512;1234;a\r\n030512;1235;b\r\n\r\n030512;1236;c\r\n",
       "144144",
       "12/05/2003",
       "12:34",
       {"030512;1234;a", "030512;1235;b"}},
      {"PBand=1,3 GHz\n[QSORecords;1]\n990101;0001;a", "1,3 GHz1,3 GHz", "01/01/1999", "00:01", {"990101;0001;a"}},
      {"PBand=50\nPBand=70\n[QSORecords]\n500101;1200;a\nPBand=1\n",
       "7070",
       "01/01/2050",
       "12:00",
       {"500101;1200;a", "PBand=1"}},
      {"PBand\n[QSORecords;1]\n510101;1200;a\n", "", "01/01/1951", "12:00", {"510101;1200;a"}},
      {"[QSORecords;0]\n\n[END]\n", "", "//20", ":", {}},
      {"PBand=144\n[qsorecords;1]\n030512;1234;a\n", "144144", "", "", {}},
      {"", "", "", "", {}},
  };
  for (const auto& c : cases) {
    const auto file = Lit_Fichier_EDI(c.text);
    EXPECT_EQ(file.bande, c.band) << c.text;
    EXPECT_EQ(file.premier.date, c.date) << c.text;
    EXPECT_EQ(file.premier.heure, c.time) << c.text;
    EXPECT_EQ(file.enregistrements, c.records) << c.text;
  }
  EXPECT_THROW(Lit_Fichier_EDI("PBand=144\r\n[QSORecords;0]\r\n"), Erreur_Execution);
}

}  // namespace
}  // namespace vorelio::tests
