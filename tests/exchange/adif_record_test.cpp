#include "exchange/adif_record.h"

#include <gtest/gtest.h>

#include "core/log_line.h"
#include "core/text.h"
#include "support/error_of.h"

namespace vorelio::tests {
namespace {

const std::string kNo_Date = De_Utf8("Date absente, remplacée par 01/01/2000");
const std::string kNo_Time = De_Utf8("Heure absente, remplacée par 00:00");
const std::string kNo_Call = De_Utf8("Indicatif absent, remplacé par FXXXX");
const std::string kNo_Band = De_Utf8("Bande absente, remplacée par 1.8 Mhz");

/// What every record needs for a line without a message.
const std::string kBase = "<QSO_DATE:8>20030512<TIME_ON:4>1234<CALL:5>F6ABC<BAND:3>20M";

Ligne_Importee Convert(const std::string& record, char state = '0') { return Ligne_ADIF(record, state); }

/// The columns of a field with its gap, as they stand.
std::string Columns(const std::string& line, const Champ& field) {
  return std::string(Coupe(line, field.colonne, field.largeur + field.ecart));
}

TEST(AdifRecord, FieldsOneByOne) {
  const std::tuple<const char*, Champ, const char*> cases[] = {
      {"<QSO_DATE:4>2003<X>", champs::Date_A, "//03      "},
      {"<QSO_DATE:12>200305121234<X>", champs::Date_A, "12/05/03  "},
      {"<TIME_ON:3>905<X>", champs::Debut_A, "90:5   "},
      {"<TIME_ON:4>0905<X>", champs::Fin_A, "09:05  "},
      {"<TIME_ON:4>0905<TIME_OFF:0><X>", champs::Fin_A, "00:00  "},
      {"<TIME_OFF:6>101112<X>", champs::Fin_A, "10:11  "},
      {"<CALL:13>F6ABCDEFGHIJK<X>", champs::Indicatif_A, "F6ABCDEFGHIJ"},
      {"<CALL:5> f6abc <X>", champs::Indicatif_A, "F6ABC       "},
      // The length of a tag counts for nothing.
      {"<CALL:2>F6ABC<X>", champs::Indicatif_A, "F6ABC       "},
      // Of two tags of which one begins the other, the first in the line is the one.
      {"<CALLSIGN:5>F1AAA<CALL:5>F2BBB<X>", champs::Indicatif_A, "F1AAA       "},
      {"<CALL:5>F2BBB<CALLSIGN:5>F1AAA<X>", champs::Indicatif_A, "F2BBB       "},
      {"<NAME_INTL:5>Zo\xEB<NAME:4>Zoe<X>", champs::Prenom_A, "ZO\xCB              "},
      {"<MODE:9>DOMINO-EX<X>", champs::Mode_A, "DOMINO-EX"},
      {"<MODE:0><X>", champs::Mode_A, "XXX      "},
      {"<RST_SENT:3>599<STX:3>001<X>", champs::RSTE_A, "599001    "},
      {"<RST_SENT:3>599<STX:0><X>", champs::RSTE_A, "599XX     "},
      {"<STX_STRING:2>13<X>", champs::RSTE_A, "XX13      "},
      {"<RST_RCVD:0><SRX:4>1234<X>", champs::RSTR_A, "XX1234    "},
      {"<RST_RCVD:3>599<X>", champs::RSTR_A, "599       "},
      {"<GRIDSQUARE:8>jn33bb12<X>", champs::Locator_A, "JN33BB  "},
      {"<QTH:25>Saint-Remy-de-Provence-Sud<X>", champs::QTH_A, "SAINT-REMY-DE-PROVEN  "},
      {"<NAME:20>Jean-Christophe-Marie<X>", champs::Prenom_A, "JEAN-CHRISTOPHE  "},
      {"<COMMENT:33>123456789012345678901234567890123<X>", champs::Remarques_A, "123456789012345678901234567890"},
      {"<STATE:2>75<X>", champs::Depart_A, "75   "},
      {"<STATE:2>2a<X>", champs::Depart_A, "2A   "},
      {"<STATE:3>971<X>", champs::Depart_A, "971  "},
      {"<STATE:5>12345<X>", champs::Depart_A, "12345"},
      {"<STATE:2>AB<X>", champs::Depart_A, "     "},
  };
  for (const auto& [record, field, columns] : cases)
    EXPECT_EQ(Columns(Convert(record).ligne, field), columns) << record;
}

TEST(AdifRecord, Bands) {
  const std::tuple<const char*, const char*, bool> cases[] = {
      {"<BAND:4>160m", "1.8 Mhz", false},
      {"<BAND:3>80M", "3.5 Mhz", false},
      {"<BAND:5>13 cm", "1.8 Mhz", true},
      {"<BAND:4>70CM", "432 Mhz", false},
      {"<BAND:6>1.25cm", "24 Ghz", false},
      {"<BAND:4>1300", "1.3 Ghz", false},
      {"<BAND:3>60M", "1.8 Mhz", true},
      {"<BAND:0>", "1.8 Mhz", true},
      {"", "1.8 Mhz", true},
      {"<FREQ:6>14.195", "14 Mhz", false},
      // The frequency wins over the band, wherever it stands.
      {"<FREQ:6>21.295<BAND:3>20M", "21 Mhz", false},
      {"<BAND:3>20M<FREQ:6>21.295", "21 Mhz", false},
      {"<BAND:3>20M<FREQ:5>10.99", "10 Mhz", false},
      {"<BAND_RX:3>40M<BAND:3>20M", "7.0 Mhz", false},
      // The last character of a frequency is lost before anything else.
      {"<FREQ:3>144", "14 Mhz", false},
      {"<FREQ:4>144 ", "144 Mhz", false},
      {"<FREQ:7>144.300", "144 Mhz", false},
      {"<FREQ:3>432", "1.8 Mhz", true},
      {"<FREQ:3>1.8", "1.8 Mhz", true},
      {"<FREQ:5>1.843", "1.8 Mhz", true},
      {"<FREQ:5>3.573", "3.5 Mhz", false},
      {"<FREQ:5>7.074", "7.0 Mhz", false},
      {"<FREQ:1>7", "1.8 Mhz", true},
      {"<FREQ:0>", "1.8 Mhz", true},
      {"<FREQ:8>1296.200", "1.8 Mhz", true},
      {"<FREQ:8>5760.100", "1.8 Mhz", true},
      {"<FREQ:6>5700.1", "5.7 Ghz", false},
      {"<FREQ:6>10000.1", "10 Ghz", false},
      {"<FREQ:5>24000", "1.8 Mhz", true},
  };
  for (const auto& [fields, band, told] : cases) {
    const auto read = Convert("<QSO_DATE:8>20030512<TIME_ON:4>1234<CALL:5>F6ABC" + std::string(fields) + "<EOR>");
    EXPECT_EQ(Lit_Log(read.ligne, champs::Bande_A), band) << fields;
    EXPECT_EQ(read.messages, told ? std::vector{kNo_Band} : std::vector<std::string>{}) << fields;
  }
}

TEST(AdifRecord, EveryValueOfTheBandTable) {
  const std::pair<const char*, const char*> cases[] = {
      {"160M", "1.8 Mhz"}, {"1.8", "1.8 Mhz"},   {"80M", "3.5 Mhz"},  {"3.5", "3.5 Mhz"},  {"3.6", "3.5 Mhz"},
      {"3", "3.5 Mhz"},    {"40M", "7.0 Mhz"},   {"7", "7.0 Mhz"},    {"30M", "10 Mhz"},   {"10", "10 Mhz"},
      {"20M", "14 Mhz"},   {"14", "14 Mhz"},     {"17M", "18 Mhz"},   {"18", "18 Mhz"},    {"15M", "21 Mhz"},
      {"21", "21 Mhz"},    {"12M", "24 Mhz"},    {"24", "24 Mhz"},    {"10M", "28 Mhz"},   {"28", "28 Mhz"},
      {"6M", "50 Mhz"},    {"50", "50 Mhz"},     {"2M", "144 Mhz"},   {"144", "144 Mhz"},  {"145", "144 Mhz"},
      {"70CM", "432 Mhz"}, {"432", "432 Mhz"},   {"23CM", "1.3 Ghz"}, {"1300", "1.3 Ghz"}, {"13CM", "2.3 Ghz"},
      {"2300", "2.3 Ghz"}, {"6CM", "5.7 Ghz"},   {"5660", "5.7 Ghz"}, {"5700", "5.7 Ghz"}, {"3CM", "10 Ghz"},
      {"10000", "10 Ghz"}, {"1.25CM", "24 Ghz"}, {"24000", "24 Ghz"}};
  for (const auto& [value, band] : cases) EXPECT_EQ(Bande_Importee(value), band) << value;
  for (const char* value : {"", "60M", "4M", "1296", "146", "XX MHZ", "1", "20"})
    EXPECT_EQ(Bande_Importee(value), "") << value;
}

TEST(AdifRecord, QslStatesAreCarriedOver) {
  const std::tuple<const char*, char, char> cases[] = {
      {"", '4', '1'},
      {"<QSL_SENT:1>N<QSL_RCVD:1>N", '4', '1'},
      {"<QSL_SENT:1>y", '1', '2'},
      {"<QSL_RCVD:1>Y", '1', '3'},
      {"<QSL_SENT:1>Y<QSL_RCVD:1>Y", '1', '4'},
      {"<QSL_SENT:1>X<QSL_RCVD:1>Y", '3', '1'},
      {"<QSL_RCVD:1>X", '3', '1'},
      // "Requested", "queued", "verified" say nothing: the record takes the state of the one before.
      {"<QSL_SENT:1>R<QSL_RCVD:1>N", '3', '3'},
      {"<QSL_SENT:1>Q<QSL_RCVD:1>Y", kEtat_QSL_Inconnu, '0'},
      {"<QSL_SENT:1>Y<QSL_RCVD:1>V", '4', '4'},
      {"<QSL_SENT:0><QSL_RCVD:0>", '4', '1'},
      // A longer tag in front of the right one takes its place.
      {"<QSL_SENT_VIA:1>B<QSL_SENT:1>Y", '3', '3'},
      {"<QSL_RCVD_VIA:1>Y<QSL_SENT:1>Y", '1', '4'},
  };
  for (const auto& [fields, before, after] : cases) {
    char state = before;
    const auto read = Ligne_ADIF(kBase + fields + "<EOR>", state);
    EXPECT_EQ(state, after) << fields;
    EXPECT_EQ(read.ligne.substr(127, 9), Blancs(7) + after + " ") << fields;
  }
}

TEST(AdifRecord, DefaultsAndTheirMessages) {
  auto read = Convert("no field at all");
  EXPECT_EQ(read.messages, (std::vector{kNo_Date, kNo_Time, kNo_Call, kNo_Band}));
  EXPECT_EQ(read.ligne, "01/01/2000FXXXX       00:00  00:00               1.8 Mhz   XXX      XX        XX        " +
                            Blancs(46) + "1" + Blancs(29) + "0" + Blancs(33) + "*");
  read = Convert("<QSO_DATE:0><TIME_ON:0> <CALL:0><BAND:0><EOR>");
  EXPECT_EQ(read.messages, (std::vector{kNo_Date, kNo_Time, kNo_Call, kNo_Band}));
  // The department of a line with the long date still stands in its columns.
  EXPECT_EQ(Lit_Log(Convert("<STATE:2>06<CALL:5>F6ABC<X>").ligne, champs::Depart_A), "06");
}

TEST(AdifRecord, WhatStopsTheImport) {
  const std::pair<const char*, std::vector<std::string>> cases[] = {
      {"<QSO_DATE:8>20030512", {}},
      {"<QSO_DATE:8", {}},
      {"<CALL:5>F6ABC<BAND:3>20M", {kNo_Date, kNo_Time}},
      {"<CALL:5>F6ABC<NAME:4>Jean", {kNo_Date, kNo_Time, kNo_Band}},
      {"<STATE:0><EOR>", {kNo_Date, kNo_Time, kNo_Call, kNo_Band}},
      {"<STATE:6>123456<EOR>", {kNo_Date, kNo_Time, kNo_Call, kNo_Band}},
      {"<MODE:10>MFSK-IMAGE<EOR>", {kNo_Date, kNo_Time, kNo_Call, kNo_Band}},
      {"<RST_SENT:11>59959959959<EOR>", {kNo_Date, kNo_Time, kNo_Call, kNo_Band}},
      {"<RST_RCVD:3>599<SRX:8>12345678<EOR>", {kNo_Date, kNo_Time, kNo_Call, kNo_Band}},
  };
  for (const auto& [record, messages] : cases) {
    const auto read = Convert(record);
    ASSERT_TRUE(read.erreur) << record;
    EXPECT_EQ(*read.erreur, Erreur::Argument_Invalide) << record;
    EXPECT_EQ(read.messages, messages) << record;
    EXPECT_EQ(read.ligne, "");
  }
}

TEST(AdifFile, FindsItsRecordsBehindTheHeader) {
  struct {
    const char* text;
    std::vector<std::string_view> records;
    const char *date, *time;
  } const cases[] = {
      {"ADIF export\r\n<PROGRAMID:4>Test\r\n<eoh>\r\n\r\n<QSO_DATE:8>20030512<TIME_ON:6>123456<EOR>\r\nb\n\nc",
       {"<QSO_DATE:8>20030512<TIME_ON:6>123456<EOR>", "b", "c"},
       "12/05/2003",
       "12:34"},
      {"<EOH>\n<time_on:4>0001<qso_date:8>19991231<eor>",
       {"<time_on:4>0001<qso_date:8>19991231<eor>"},
       "31/12/1999",
       "00:01"},
      // A tag that merely contains the name does for the date of the block.
      {"<Eoh> end\n<MY_QSO_DATE:8>20510101<APP_TIME_ON_X:4>1200<\n",
       {"<MY_QSO_DATE:8>20510101<APP_TIME_ON_X:4>1200<"},
       "01/01/2051",
       "12:00"},
      // A second header, where two files were put together, is no record.
      {"<EOH>\r\n<QSO_DATE:0><TIME_ON:0><\r\n<eoh>\r\nx\r\n", {"<QSO_DATE:0><TIME_ON:0><", "x"}, "//", ":"},
      // The end of the header must begin its line.
      {"Header <EOH>\r\n<QSO_DATE:8>20030512<TIME_ON:4>1234<EOR>\r\n", {}, "", ""},
      {"", {}, "", ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Enregistrements_ADIF(c.text), c.records) << c.text;
    const auto first = Premier_ADIF(c.text);
    EXPECT_EQ(first.date, c.date) << c.text;
    EXPECT_EQ(first.heure, c.time) << c.text;
  }
}

TEST(AdifFile, WhatStopsTheFirstScan) {
  struct {
    const char* text;
    Erreur error;
  } const cases[] = {
      {"<EOH>", Erreur::Fin_De_Fichier},
      {"<EOH>\r\n\r\n\n", Erreur::Fin_De_Fichier},
      {"<EOH>\r\n \r\n", Erreur::Argument_Invalide},
      {"<EOH>\r\n<QSO_DATE:8>20030512<CALL:5>F6ABC<EOR>\r\n", Erreur::Argument_Invalide},
      {"<EOH>\r\n<TIME_ON:4>1234<EOR>\r\n", Erreur::Argument_Invalide},
      {"<EOH>\r\n<QSO_DATE:8>20030512<TIME_ON:4>1234\r\n<EOR>", Erreur::Argument_Invalide},
  };
  for (const auto& c : cases) EXPECT_EQ(ErrorOf([&] { Premier_ADIF(c.text); }), static_cast<int>(c.error)) << c.text;
}

}  // namespace
}  // namespace vorelio::tests
