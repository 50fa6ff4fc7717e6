#include "core/errors.h"
#include "core/log_line.h"
#include "core/text.h"
#include "printing/label_sheet.h"
#include "printing/labels_window.h"
#include "printing/select_qso_window.h"
#include "support/contact.h"
#include "support/station_fixture.h"

namespace vorelio::tests {

namespace {

std::string ListLine() {
  return Colonne_Numero(7) + Construit_Ligne(Contact({"12/05/03", "F9ABC", "14:32", "", "", "", "144 Mhz", "SSB", "59",
                                                      "57", "DFCF 3301234 BORDEAUX"}));
}

const Textes_Etiquette kTexts{"F9QZX_P", "FT-847", "9 elements"};

Lignes_Etiquette Label(const std::string& line, int sheet, Cote side, Type_Etiquette type) {
  return Compose_Etiquette(Lit_Contact(line), kTexts, type, side, kFeuilles[static_cast<std::size_t>(sheet)].titre);
}

std::string Framed(int margin, const std::string& text, int gap = 0) {
  return Blancs(margin) + text + Blancs(margin + gap);
}

}  // namespace

TEST(LabelTest, EveryLineIsCentredForItsSideAndSheet) {
  const std::string line = ListLine(), title = "De F9QZX_P   pour F9ABC";
  const auto left = Label(line, 0, Cote::Gauche, Type_Etiquette::Activation);
  EXPECT_EQ(left,
            (Lignes_Etiquette{Framed(4, title, 1), Framed(9, "Date 12/05/03  QTR 14:32", 2),
                              Framed(6, "QRG 144 Mhz  RST 57  Mode SSB", 2), Framed(8, "TX FT-847  Ant 9 elements", 2),
                              Framed(5, "Merci Pour le DFCF 3301234 73's", 2)}));
  const auto right = Label(line, 0, Cote::Droite, Type_Etiquette::Activation);
  EXPECT_EQ(right[0], Framed(4, title));
  EXPECT_EQ(right[4], Framed(5, "Merci Pour le DFCF 3301234  73's"));
  EXPECT_EQ(Label(line, 2, Cote::Gauche, Type_Etiquette::Activation)[0], Framed(4, title, 2));
  EXPECT_EQ(Label(line, 3, Cote::Gauche, Type_Etiquette::Activation)[0], Framed(3, title, 2));
  EXPECT_EQ(Label(line, 3, Cote::Droite, Type_Etiquette::Activation)[0], Framed(4, title));
  EXPECT_EQ(Label(line, 0, Cote::Gauche, Type_Etiquette::QSO)[4], Framed(3, "Merci Pour le QSO   73's de F9QZX_P", 3));
  const auto none = Label("", 0, Cote::Droite, Type_Etiquette::Activation);
  EXPECT_EQ(none[0], Framed(6, "De F9QZX_P   pour "));
  EXPECT_EQ(none[2], Framed(12, "QRG   RST   Mode "));
}

TEST(LabelTest, ATitleThatIsTooLongIsRefused) {
  const std::tuple<int, Cote, std::size_t> cases[] = {
      {0, Cote::Gauche, 20}, {2, Cote::Droite, 20}, {3, Cote::Gauche, 19}, {3, Cote::Droite, 21}};
  for (const auto& [sheet, side, longest] : cases) {
    const Titre_Etiquette& title = kFeuilles[static_cast<std::size_t>(sheet)].titre;
    const auto compose = [&, side = side](std::size_t length) {
      const std::string call(length - kTexts.station.size(), 'A');
      Contact_Etiquette contact{};
      contact.indicatif = call;
      return Compose_Etiquette(contact, kTexts, Type_Etiquette::QSO, side, title);
    };
    EXPECT_NO_THROW(compose(longest)) << sheet;
    EXPECT_THROW(compose(longest + 1), Erreur_Execution) << sheet;
  }
}

using LabelRunTest = StationFixture;

/// T: the first line of a row, g: the gap below a row, E and D: the job ends or is discarded.
TEST_F(LabelRunTest, EachSheetIsAJob) {
  ReadyStation();
  const std::string eight = "TgTgTgTgTgTgTgT";
  const struct {
    int labels;
    bool stop;
    std::vector<bool> answers;
    std::string paper;
  } cases[] = {{15, false, {}, eight + "ED"},
               {16, false, {}, eight + "ED"},
               {17, false, {}, eight + "ETgE"},
               {17, true, {true}, eight + "ETgE"},
               {17, true, {false}, eight + "E"},
               {16, true, {true}, eight + "ED"},
               {33, true, {true, false}, eight + "E" + eight + "E"}};
  for (const auto& run : cases) {
    WriteLines("F6ABC.log", Lines(static_cast<std::size_t>(run.labels), ListLine().substr(6)));
    for (const bool answer : run.answers) messages.Answer(answer);
    devices.printer.events.clear();
    Event([&] {
      auto& selection = programme->Fenetre<Select_QSO>();
      selection.Show();
      while (selection.Liste_QSO.Count() > 0) selection.Liste_QSO.UserSelect(0);
      auto& labels = programme->Fenetre<Etiquettes>();
      labels.Show();
      labels.Etiqu_3.UserClick();
      if (run.stop) labels.Arret_Imp.UserClick();
      labels.Imprime.UserClick();
      labels.Unload();
    });
    std::string paper;
    for (const auto& event : devices.printer.events) {
      if (event.kind == PaperRecord::Event::Kind::JobEnd) paper += 'E';
      if (event.kind == PaperRecord::Event::Kind::JobDiscarded) paper += 'D';
      if (event.kind != PaperRecord::Event::Kind::Line) continue;
      if (event.font.size == 15) paper += 'T';
      if (event.font.size == 27) paper += 'g';
    }
    EXPECT_EQ(paper, run.paper) << run.labels;
    EXPECT_EQ(messages.TakeQuestions(), Lines(run.answers.size(), "               Page suivante ?"));
    EXPECT_EQ(devices.printer.Font(), (PrinterFont{"Arial", 10, false}));
    EXPECT_EQ(programme->Ouverte<Select_QSO>(), nullptr);
  }
}

}  // namespace vorelio::tests
