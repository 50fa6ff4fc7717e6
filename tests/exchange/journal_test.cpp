#include "exchange/journal.h"

#include <gtest/gtest.h>

#include "core/log_line.h"
#include "core/text.h"

namespace vorelio::tests {
namespace {

Contexte_Journal Home() { return {"F9QZX", "JN33BB", {"QSO", "DFCF", "IOTA"}, {}}; }

/// The fields of a line that aren't blank, "|" between them, in UTF-8: date, callsign, start, end, department, square,
/// band, mode, both reports, QTH, name, QSL state and dates, distance, azimuth, activity, remarks.
std::string Told(const std::string& line) {
  EXPECT_EQ(line.size(), 199U);
  std::string told;
  for (const Champ& field : {champs::Date_A, champs::Indicatif_A, champs::Debut_A, champs::Fin_A, champs::Depart_A,
                             champs::Locator_A, champs::Bande_A, champs::Mode_A, champs::RSTE_A, champs::RSTR_A,
                             champs::QTH_A, champs::Prenom_A, champs::Etat_QSL, champs::QSLE_A, champs::QSLR_A,
                             champs::Distance_A, champs::Azimut_A, champs::Activ_A, champs::Remarques_A})
    if (const auto value = Lit_Log(line, field); !value.empty()) told.append(told.empty() ? "" : "|").append(value);
  return Vers_Utf8(told);
}

/// What has become of all records: lines as above, "*" before those that were cut, "-" and the reason for a refusal.
std::string Read(std::string_view file) {
  const Journal_Lu journal = Lit_Journal(file, Home());
  std::string told = Vers_Utf8(journal.format + journal.illisible);
  for (const QSO_Lu& qso : journal.qso) told += (qso.coupe ? "\n*" : "\n") + Told(qso.ligne);
  for (const QSO_Refuse& refused : journal.refuses)
    told += "\n-" + std::to_string(refused.numero) + ":" + std::to_string(refused.place) + " " +
            Vers_Utf8(refused.indicatif + ": " + refused.raison);
  return told;
}

std::string Field(const std::string& name, const std::string& value) {
  return "<" + name + ":" + std::to_string(value.size()) + ">" + value;
}

constexpr const char* kBase = "<CALL:5>F6ABC<QSO_DATE:8>20030512<TIME_ON:4>1234<BAND:3>20M<MODE:2>CW";

TEST(Journal, AdifAsOtherProgramsWriteIt) {
  const std::pair<std::string, const char*> files[] = {
      // A digital-mode program: no line of its own for the end of the header, small letters, one record a line.
      {"WSJT-X ADIF Export<eoh>\n"
       "<call:5>K1ABC <gridsquare:4>FN42 <mode:3>FT8 <rst_sent:3>-10 <rst_rcvd:3>+02 <qso_date:8>20240131 "
       "<time_on:6>235945 <qso_date_off:8>20240201 <time_off:6>000100 <band:2>6m <freq:9>50.313500 "
       "<station_callsign:5>F9QZX <my_gridsquare:6>JN33BB <comment:9>FT8 -10 x <eor>\n"
       "<call:4>I2XX <gridsquare:4>JN45 <mode:4>MFSK <submode:3>FT4 <rst_sent:3>-01 <rst_rcvd:3>-15 "
       "<qso_date:8>20240131 <time_on:6>101500 <time_off:6>101600 <band:3>40m <freq:8>7.047500 <eor>\n",
       "ADIF, WSJT-X ADIF Export\n"
       "31/01/24|K1ABC|23:59|00:01|FN42LL|50 Mhz|FT8|-10|+02|1|6066|298|0|FT8 -10 x\n"
       "31/01/24|I2XX|10:15|10:16|7.0 Mhz|FT4|-01|-15|1|351|39|0"},
      // The same family, with fields in the header and none before it.
      {"<ADIF_VER:5>3.1.1 <PROGRAMID:4>JTDX <EOH>\r\n<call:6>DL1XYZ<mode:3>FT8<qso_date:8>20200102<time_on:6>030405"
       "<band:3>20m<freq:9>14.075501<eor>",
       "ADIF 3.1.1, JTDX\n02/01/20|DL1XYZ|03:04|03:04|14 Mhz|FT8|1|0"},
      // Text in front of the header, a type letter behind the length, FREQ alone, the submode for the mode.
      {"File: fldigi.adi\n<ADIF_VER:5>2.2.7<PROGRAMID:6>FLDIGI<PROGRAMVERSION:6>4.1.20<EOH>\n"
       "<FREQ:9>14.070250<CALL:5>EA5XX<MODE:5>PSK31<NAME:4>Jose<QSO_DATE:8:D>20190615<QSO_DATE_OFF:8:D>20190615"
       "<TIME_OFF:6:T>174512<TIME_ON:6:T>174001<STATE:0><QTH:8>Valencia<STX:0><SRX:0><RST_RCVD:3>599<RST_SENT:3>599"
       "<QSL_SENT:0><EOR>\n",
       "ADIF 2.2.7, FLDIGI 4.1.20\n15/06/19|EA5XX|17:40|17:45|14 Mhz|PSK31|599|599|Valencia|Jose|1|0"},
      // A contest logger: numbers, blanks behind each field, fields of its own.
      {"ADIF Export from N1MMLogger.net - Version 1.0.9000.0\r\nBuilt: 01/01/2024\r\n<EOH>\r\n"
       " <CALL:6>OK1XYZ <QSO_DATE:8>20231125 <TIME_ON:6>101112 <TIME_OFF:6>101112 <ARRL_SECT:0> <BAND:3>40M "
       "<STATION_CALLSIGN:5>F9QZX <FREQ:7>7.02500 <CONTEST_ID:8>CQ-WW-CW <FREQ_RX:7>7.02500 <MODE:2>CW <CQZ:2>15 "
       "<RST_RCVD:3>599 <RST_SENT:3>599 <SRX:2>15 <STX:1>7 <OPERATOR:5>F9QZX <APP_N1MM_POINTS:1>1 <EOR>\r\n",
       "ADIF, ADIF Export from N1MMLogger.net - Version 1.0.9000.0\n"
       "25/11/23|OK1XYZ|10:11|10:11|7.0 Mhz|CW|599007|599015|1|0"},
      // Lengths in characters, accents in UTF-8, parks.
      {"Log4OM\n<ADIF_VER:5>3.1.4 <PROGRAMID:6>LOG4OM <PROGRAMVERSION:8>2.32.0.0 <EOH>\n"
       "<CALL:5>F5DEF <BAND:3>20M <MODE:3>SSB <SUBMODE:3>USB <QSO_DATE:8>20240501 <TIME_ON:6>120000 <NAME:4>René "
       "<QTH:8>Besançon <POTA_REF:7>FR-1234 <SIG:4>POTA <SIG_INFO:7>FR-1234 <STATE:2>25 <QSL_SENT:1>R "
       "<QSL_RCVD:1>I <COMMENT:15>à côté de l'été <EOR>\n",
       "ADIF 3.1.4, LOG4OM 2.32.0.0\n"
       "01/05/24|F5DEF|12:00|12:00|25|14 Mhz|SSB|Besançon|René|1|0|à côté de l'été POTA FR-1234"},
      // Fields on lines of their own, card dates, "V".
      {"This ADIF file was extracted from DXKeeper\r\n<EOH>\r\n<CALL:7>VK9/X1A\r\n<BAND:3>15M\r\n<FREQ:6>21.255\r\n"
       "<MODE:3>SSB\r\n<QSO_DATE:8>19991231\r\n<TIME_ON:6>235900\r\n<QSL_RCVD:1>V\r\n<QSLRDATE:8>20000615\r\n"
       "<QSL_SENT:1>Y\r\n<QSLSDATE:8>20000102\r\n<APP_DXKeeper_DXCCPREFIX:2>VK\r\n<NOTES:12>two\r\nlines  <EOR>\r\n",
       "ADIF, This ADIF file was extracted from DXKeeper\n"
       "31/12/99|VK9/X1A|23:59|23:59|21 Mhz|SSB|4|02/01/00|15/06/00|0|two  lines"},
      // A report of confirmations, with the length of the notes wrong.
      {"ARRL Logbook of the World Status Report\nGenerated at 2024-01-01 00:00:00\n\n<PROGRAMID:4>LoTW\n"
       "<APP_LoTW_LASTQSL:19>2024-01-01 00:00:00\n\n<APP_LoTW_NUMREC:1>1\n\n<eoh>\n\n<CALL:5>W1AW/\n<BAND:3>20M\n"
       "<FREQ:8>14.03000\n<MODE:2>CW\n<APP_LoTW_MODEGROUP:2>CW\n<QSO_DATE:8>20231201\n<TIME_ON:6>141516\n"
       "<QSL_RCVD:1>Y\n<QSLRDATE:8>20231224\n<DXCC:3>291\n<STATE:2>CT // Connecticut\n<GRIDSQUARE:6>FN31PR\n<eor>\n\n"
       "<APP_LoTW_EOF>\n",
       "ADIF, LoTW\n01/12/23|W1AW/|14:15|14:15|14 Mhz|CW|3|24/12/23|6227|298|0"},
      // No header at all, a department beside a foreign state, Corsica, an unfinished last record.
      {"<CALL:7>TK5AB/P<QSO_DATE:8>20050701<TIME_ON:4>0800<BAND:2>2m<MODE:2>FM<STATE:2>2B<GRIDSQUARE:6>jn42qx<EOR>"
       "<CALL:6>DL1XYZ<QSO_DATE:8>20050701<TIME_ON:4>0810<BAND:4>70cm<MODE:2>FM<STATE:2>06<EOR>"
       "<CALL:6>F/G4AB<QSO_DATE:8>20050701<TIME_ON:4>0820<BAND:4>23cm<MODE:3>SSB<CNTY:8>33 Giron",
       "ADIF\n01/07/05|TK5AB/P|08:00|08:00|2b|JN42QX|144 Mhz|FM|1|265|91|0\n"
       "01/07/05|DL1XYZ|08:10|08:10|432 Mhz|FM|1|0\n01/07/05|F/G4AB|08:20|08:20|33|1.3 Ghz|SSB|1|0"},
  };
  for (const auto& [file, expected] : files) EXPECT_EQ(Read(file), expected);
}

TEST(Journal, FieldsOneByOne) {
  // What is added to a whole record, the field looked at, what stands there; "*" where something was cut.
  const std::tuple<std::string, Champ, const char*> cases[] = {
      {Field("COMMENT", "a <b:3> <EOR> c"), champs::Remarques_A, "a <b:3> <EOR> c"},
      {Field("comment", "x") + "junk", champs::Remarques_A, "x"},
      {"<COMMENT:30>too long a length" + Field("NAME", "Ann"), champs::Prenom_A, "Ann"},
      {"<COMMENT:99999>never ends" + Field("NAME", "Ann"), champs::Remarques_A, "never ends"},
      {"<NAME:5>Ren\xE9" + Field("QTH", "Nice"), champs::Prenom_A, "Ren\xE9"},
      {"<NAME:5>Ren\xE9" + Field("QTH", "Nice"), champs::QTH_A, "Nice"},
      {Field("NAME", "\xC5\x81ukasz"), champs::Prenom_A, "*?ukasz"},
      {Field("NAME", "Jean-Christophe Amédée"), champs::Prenom_A, "*Jean-Christophe"},
      {Field("COMMENT", "a\tb"), champs::Remarques_A, "a b"},
      {Field("COMMENT", "") + Field("NOTES", "n"), champs::Remarques_A, "n"},
      {Field("MODE", "PSK") + Field("SUBMODE", "PSK63"), champs::Mode_A, "PSK63"},
      {Field("MODE", "usb"), champs::Mode_A, "SSB"},
      {Field("MODE", "THRB") + Field("SUBMODE", "THRBX"), champs::Mode_A, "THROB"},
      {Field("MODE", "PKT"), champs::Mode_A, "PACKET"},
      {Field("MODE", "OLIVIA") + Field("SUBMODE", "OLIVIA 8/500"), champs::Mode_A, "*OLIVIA"},
      {Field("MODE", "DIGITALVOICE"), champs::Mode_A, "*DIGITAL"},
      {Field("RST_SENT", "59") + Field("STX", "1"), champs::RSTE_A, "59001"},
      {Field("RST_SENT", "-10") + Field("STX_STRING", "12"), champs::RSTE_A, "-10 012"},
      {Field("RST_RCVD", "599") + Field("SRX_STRING", "ABCDEF"), champs::RSTR_A, "*599 ABCD"},
      {Field("BAND", "2M") + Field("FREQ", "14.2"), champs::Bande_A, "144 Mhz"},
      {Field("BAND", "") + Field("FREQ", "10368.1"), champs::Bande_A, "10 Ghz"},
      {Field("BAND", "") + Field("FREQ", "7,1"), champs::Bande_A, "7.0 Mhz"},
      {Field("BAND", "2M") + Field("GRIDSQUARE", "JN45AB12"), champs::Locator_A, "*JN45AB"},
      {Field("BAND", "2M") + Field("GRIDSQUARE", "ZZ99"), champs::Locator_A, "*"},
      {Field("BAND", "2M") + Field("GRIDSQUARE", "JN33BB"), champs::Distance_A, "0"},
      {Field("BAND", "2M") + Field("GRIDSQUARE", "JN33BB") + Field("MY_GRIDSQUARE", "JN43BB"), champs::Azimut_A, "271"},
      {Field("DISTANCE", "512.4"), champs::Distance_A, "512"},
      {Field("QSL_RCVD", "Q") + Field("QSLRDATE", "20030101"), champs::Etat_QSL, "1"},
      {Field("STATE", "331"), champs::Depart_A, ""},
      {Field("STATE", "20"), champs::Depart_A, ""},
      {Field("SIG", "dfcf") + Field("SIG_INFO", "89125"), champs::Activ_A, "1"},
      {Field("SIG", "DFCF") + Field("SIG_INFO", "89125"), champs::QTH_A, "DFCF 89125"},
      {Field("IOTA", "EU-064") + Field("QTH", "Brehat"), champs::Remarques_A, "IOTA EU-064"},
      {Field("SOTA_REF", "F/AB-001"), champs::Remarques_A, "SOTA F/AB-001"},
      {Field("SOTA_REF", "F/AB-001"), champs::Activ_A, "0"},
  };
  for (const auto& [fields, field, expected] : cases) {
    const std::string file = kBase + fields + "<EOR>";
    const Journal_Lu journal = Lit_Journal(file, Home());
    ASSERT_EQ(journal.qso.size(), 1U) << fields;
    const QSO_Lu& qso = journal.qso[0];
    EXPECT_EQ((qso.coupe ? "*" : "") + std::string(Lit_Log(qso.ligne, field)), expected) << fields;
  }
}

TEST(Journal, RefusalsSayWhy) {
  const std::pair<std::string, const char*> cases[] = {
      {Field("CALL", ""), "Indicatif absent"},
      {Field("CALL", "F/ABCDEF12345"), "Indicatif de plus de 12 caractères"},
      {Field("QSO_DATE", "20030230"), "Date impossible : 20030230"},
      {Field("QSO_DATE", "030512"), "Date impossible : 030512"},
      {Field("QSO_DATE", ""), "Date absente"},
      {Field("QSO_DATE", "19491231"), "Année hors de 1950 à 2049 : 1949"},
      {Field("TIME_ON", "2400"), "Heure impossible : 2400"},
      {Field("TIME_ON", "123"), "Heure impossible : 123"},
      {Field("TIME_ON", ""), "Heure absente"},
      {Field("TIME_OFF", "1299"), "Heure de fin impossible : 1299"},
      {Field("BAND", "60m"), "Bande que le carnet n'a pas : 60M"},
      {Field("BAND", ""), "Bande absente"},
      {Field("BAND", "") + Field("FREQ", "27.555"), "Fréquence hors des bandes du carnet : 27.555"},
  };
  std::string file = "Header\r\n<EOH>\r\n", refused = file;
  for (const auto& [fields, reason] : cases)
    file += std::string(kBase) + "\r\n<EOR>\r\n" + kBase + fields + "<EOR>\r\n";
  const Journal_Lu journal = Lit_Journal(file, Home());
  ASSERT_EQ(journal.refuses.size(), std::size(cases));
  EXPECT_EQ(journal.Lus(), 2 * std::size(cases));
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    EXPECT_EQ(Vers_Utf8(journal.refuses[i].raison), cases[i].second);
    EXPECT_EQ(journal.refuses[i].numero, 2 * i + 2);
    EXPECT_EQ(journal.refuses[i].place, 3 * i + 5);
    refused += kBase + cases[i].first + "<EOR>\r\n";
  }
  EXPECT_EQ(Fichier_Refuses(journal), refused);
}

TEST(Journal, Edi) {
  const std::string head = "[REG1TEST;1]\r\nTName=Rallye\r\nPCall=F9QZX\r\nPWWLo=JN43BB\r\nPBand=";
  const std::string records = "\r\n[Remarks]\r\nsome; words\r\n[QSORecords;1]\r\n";
  const std::string two = head + "144 MHz" + records +
                          "030512;1234;F9XKV;1;59;001;59;002;06;JN33BB;1;;N;N;;\r\n"
                          "030512;1235;DL1XYZ/P;2;599;002;599;017;;JO40AA;512;;;;\r\n\r\n"
                          "030512;1299;DL1XYZ/P;2;599;002;599;017;;JO40AA;512;;;;\r\n[END;x]\r\n" +
                          head + "1,3 GHz" + records + "491231;2359;2E0AA;6;59;1;59;2;KENT;IO91;0;;;;D\n" +
                          "500101;0000;ERROR;;;;;;;;0;;;;";
  EXPECT_EQ(Read(two),
            "EDI (REG1TEST), Rallye, 144 MHz, 1,3 GHz\n"
            "12/05/03|F9XKV|12:34|12:34|06|JN33BB|144 Mhz|SSB|59001|59002|1|163|271|0\n"
            "12/05/03|DL1XYZ/P|12:35|12:35|JO40AA|144 Mhz|CW|599002|599017|1|775|360|0\n"
            "31/12/49|2E0AA|23:59|23:59|IO91LL|1.3 Ghz|FM|59001|59002|1|1163|327|0|KENT\n"
            "-3:12 DL1XYZ/P: Heure impossible : 1299\n-5:23 ERROR: QSO noté en erreur");
  EXPECT_EQ(Fichier_Refuses(Lit_Journal(two, Home())),
            head + "144 MHz" + records + "030512;1299;DL1XYZ/P;2;599;002;599;017;;JO40AA;512;;;;\r\n" + head +
                "1,3 GHz" + records + "500101;0000;ERROR;;;;;;;;0;;;;\r\n");

  const std::pair<const char*, const char*> bands[] = {
      {"50 MHz", "50 Mhz"},    {"50", "50 Mhz"},       {"145 MHz", "144 Mhz"}, {"435 MHz", "432 Mhz"},
      {"1296 MHz", "1.3 Ghz"}, {"1.3GHz", "1.3 Ghz"},  {"1,2 GHz", "1.3 Ghz"}, {"2,3 GHz", "2.3 Ghz"},
      {"2320", "2.3 Ghz"},     {"5,7 GHz", "5.7 Ghz"}, {"5.6 GHz", "5.7 Ghz"}, {"10 GHz", "10 Ghz"},
      {"10368 MHz", "10 Ghz"}, {"10", "10 Ghz"},       {"24 GHz", "24 Ghz"},   {"24 MHz", "24 Mhz"},
      {"23cm", "1.3 Ghz"},     {"3,4 GHz", ""},        {"70 MHz", ""},         {"??", ""},
  };
  for (const auto& [value, band] : bands) {
    const Journal_Lu journal =
        Lit_Journal(head + value + records + "030512;1234;F9XKV;1;59;001;59;002;;JN33BB;12;;;;\r\n", Home());
    EXPECT_EQ(journal.qso.empty() ? "" : std::string(Lit_Log(journal.qso[0].ligne, champs::Bande_A)), band) << value;
  }
}

TEST(Journal, WhatIsNoLogSaysSo) {
  const std::pair<std::string, const char*> files[] = {
      {"", "vide"},
      {" \r\n\x1A", "vide"},
      {std::string(100000, '\0'), "pas un texte"},
      {std::string("\xFF\xFE<\0C\0", 6), "UTF-16"},
      {std::string("<\0C\0A\0L\0", 8), "UTF-16"},
      {"%PDF-1.4\n<</Length 3>>", "PDF"},
      {"START-OF-LOG: 3.0\nQSO: x", "Cabrillo"},
      {"<?xml version=\"1.0\"?><ADX>", "ADX"},
      {"Dear OM,\n<img:3>abc thank you", "ni un journal ADIF"},
  };
  for (const auto& [file, words] : files) {
    const Journal_Lu journal = Lit_Journal(file, Home());
    EXPECT_NE(journal.illisible.find(words), std::string::npos) << words << ": " << journal.illisible;
    EXPECT_EQ(journal.Lus(), 0U);
  }
  EXPECT_TRUE(Lit_Journal("An empty log\n<EOH>\n", Home()).illisible.empty());
}

TEST(Journal, TellsHowFarItIs) {
  std::string file;
  for (int i = 0; i < 5000; ++i) file += std::string(kBase) + "<EOR>\n";
  std::vector<std::size_t> told;
  Lit_Journal(file, Home(), [&](std::size_t done, std::size_t total) {
    EXPECT_EQ(total, file.size());
    told.push_back(done);
  });
  EXPECT_EQ(told.size(), 6U);
  EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
  EXPECT_EQ(told.back(), file.size());
}

}  // namespace
}  // namespace vorelio::tests
