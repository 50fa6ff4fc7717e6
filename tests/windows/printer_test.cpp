#include <QDir>
#include <QFile>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <algorithm>

#include "core/log_line.h"
#include "core/text.h"
#include "entry/ddfm.h"
#include "printing/labels_window.h"
#include "printing/select_qso_window.h"
#include "qt/qt_printer.h"
#include "qt/qt_text.h"
#include "support/contact.h"
#include "support/error_of.h"
#include "windows/windows_bench.h"

namespace vorelio::tests {
namespace {

constexpr double kPoint_mm = 25.4 / 72;
constexpr QSizeF kPaper_mm(210, 297);

struct Word {
  QString text;
  QRectF mm;
};

/// The words of a PDF file, page by page, with their places on the paper.
std::vector<std::vector<Word>> Read(const QString& file) {
  QProcess reader;
  reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), file, QStringLiteral("-")});
  if (!reader.waitForFinished() || reader.exitCode() != 0) return {};
  static const QRegularExpression shape(QStringLiteral(
      "<page |<word xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\">(.*?)</word>"));
  std::vector<std::vector<Word>> pages;
  const QString text = QString::fromUtf8(reader.readAllStandardOutput());
  for (auto found = shape.globalMatch(text); found.hasNext();) {
    const auto match = found.next();
    if (match.captured(5).isEmpty()) {
      pages.emplace_back();
      continue;
    }
    const auto mm = [&](int group) { return match.captured(group).toDouble() * kPoint_mm; };
    const QString word = match.captured(5).replace(QStringLiteral("&apos;"), QStringLiteral("'"));
    pages.back().push_back({word, QRectF(QPointF(mm(1), mm(2)), QPointF(mm(3), mm(4)))});
  }
  return pages;
}

/// Words of a page, line by line from its top and each from its left.
std::vector<std::vector<Word>> Lines(std::vector<Word> words) {
  std::sort(words.begin(), words.end(), [](const Word& a, const Word& b) { return a.mm.top() < b.mm.top(); });
  std::vector<std::vector<Word>> lines;
  for (const Word& word : words) {
    if (lines.empty() || word.mm.top() - lines.back().front().mm.top() > 1) lines.emplace_back();
    lines.back().push_back(word);
  }
  for (auto& line : lines)
    std::sort(line.begin(), line.end(), [](const Word& a, const Word& b) { return a.mm.left() < b.mm.left(); });
  return lines;
}

/// A user of the dialog who chooses a PDF file, or cancels.
class AnsweredPrinter : public QtPrinter {
 public:
  using QtPrinter::QtPrinter;
  QString answer;

 protected:
  bool Execute(QPrintDialog& dialog) override {
    if (answer.isEmpty()) return false;
    dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
    dialog.printer()->setOutputFileName(answer);
    return true;
  }
};

struct Paper : WindowsBench {
  QString File(const char* name) const { return QDir(ToQt(folder.Path())).filePath(QString::fromLatin1(name)); }

  void Print(const std::vector<std::string>& lines, const PrinterFont& font) {
    printer.SetFont(font);
    for (const std::string& line : lines) printer.PrintLine(line);
    printer.EndJob();
  }

  AnsweredPrinter printer{windows, messages};
};

/// A sheet of sixteen labels as its maker cuts it, in millimetres.
struct Sheet {
  QSizeF label;
  double left, top, gap;

  QRectF Label(int row, int column) const {
    return {{left + column * (label.width() + gap), top + row * label.height()}, label};
  }
};

const Sheet kSheets[] = {
    {{99.1, 33.9}, 4.65, 12.9, 2.5}, {{99.1, 34}, 4.65, 12.5, 2.5}, {{105, 37}, 0, 0.5, 0}, {{105, 35}, 0, 8.5, 0}};

/// Contacts whose texts are short and long, up to the full width of their fields.
std::string Line(int n) {
  const std::string call = std::string("F9A") + static_cast<char>('A' + n) + std::string("/MM/QRP/A").substr(0, n % 8);
  return Construit_Ligne(
      Contact({"12/05/03", call, "14:" + Deux_Chiffres(n), "", "", "", n % 2 ? "1.8 Mhz" : "24 Ghz",
               n % 3 ? "CW" : "PACKET", "", n % 5 ? "59" : "59+40 dB", n % 4 ? "DFCF 33012" : "DFCF 3301234"}));
}

int CountWords(const std::string& text) { return static_cast<int>(ToQt(text).split(u' ', Qt::SkipEmptyParts).size()); }

using PrinterTest = On<Paper>;

class Labels : public PrinterTest, public testing::WithParamInterface<std::tuple<std::size_t, int>> {};
INSTANTIATE_TEST_SUITE_P(SheetsAndCounts, Labels,
                         testing::Combine(testing::Range<std::size_t>(0, 4), testing::Values(16, 17)));

TEST_P(Labels, StayOnTheirSheets) {
  const std::size_t sheet = std::get<0>(GetParam());
  const int count = std::get<1>(GetParam());
  printer.answer = File("Etiquettes.pdf");
  std::string log;
  std::vector<std::string> contacts;
  for (int n = 0; n < count; ++n) log += contacts.emplace_back(Line(n)) + "\r\n";
  disk.WriteAll(programme.Chemin_Log("F9QZX"), log);
  Programme run({settings, messages, dialogs, clock, windows, disk, printer, devices.serial, devices.pages,
                 devices.sounds, devices.clipboard, devices.documents, folder.Path()});
  run.contexte.Station_Indicatif = "F9QZX_P";
  disk.Copy(programme.Chemin_Log("F9QZX"), run.Chemin_Log("F9QZX_P"));
  windows.Deliver(run, [&] {
    auto& selection = run.Fenetre<Select_QSO>();
    selection.Show();
    while (selection.Liste_QSO.Count() > 0) selection.Liste_QSO.UserSelect(0);
    auto& labels = run.Fenetre<Etiquettes>();
    labels.Show();
    labels.RxTx.UserText("FT-847 + ampli.", 0);
    labels.Antenne.UserText("2 x 9 element", 0);
    OptionButton* models[] = {&labels.Etiqu_1, &labels.Etiqu_2, &labels.Etiqu_3, &labels.Etiqu_4};
    models[sheet]->UserClick();
    labels.Imprime.UserClick();
  });
  EXPECT_EQ(run.Erreur_Fatale(), 0);
  EXPECT_EQ(QFile::exists(File("Etiquettes-2.pdf")), count > 16);
  EXPECT_FALSE(QFile::exists(File("Etiquettes-3.pdf")));

  const Textes_Etiquette texts{"F9QZX_P", "FT-847 + ampli.", "2 x 9 element"};
  for (int first = 0; first < count; first += 16) {
    const auto pages = Read(File(first == 0 ? "Etiquettes.pdf" : "Etiquettes-2.pdf"));
    EXPECT_EQ(pages.size(), std::size_t{1});
    const auto lines = Lines(pages.front());
    const int rows = (std::min(count - first, 16) + 1) / 2;
    EXPECT_EQ(lines.size(), static_cast<std::size_t>(rows) * 5);
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const int row = static_cast<int>(i / 5), left = first + 2 * row;
      const auto text = [&](int n, Cote side) {
        const std::string line = n < count ? Colonne_Numero(n + 1) + contacts[static_cast<std::size_t>(n)] : "";
        return Compose_Etiquette(Lit_Contact(line), texts, Type_Etiquette::Activation, side,
                                 kFeuilles[sheet].titre)[i % 5];
      };
      const auto on_left = static_cast<std::size_t>(CountWords(text(left, Cote::Gauche)));
      EXPECT_EQ(lines[i].size(), on_left + static_cast<std::size_t>(CountWords(text(left + 1, Cote::Droite))));
      for (std::size_t w = 0; w < lines[i].size(); ++w) {
        const QRectF label = kSheets[sheet].Label(row, w < on_left ? 0 : 1);
        const QRectF& mm = lines[i][w].mm;
        EXPECT_TRUE(label.contains(mm)) << qPrintable(lines[i][w].text) << ": " << mm.left() << " " << mm.top() << " - "
                                        << mm.right() << " " << mm.bottom() << ", row " << row;
      }
    }
  }
}

TEST_F(PrinterTest, LinesRunDownThePagesAndAreCutNowhere) {
  const QString file = File("Liste.pdf");
  printer.PrintTo(file);
  const std::string longest = "    1 " + std::string(54, 'M') + " " + std::string(53, 'W') + " Reçue"_t;
  EXPECT_EQ(longest.size(), std::size_t{120});
  Print(std::vector<std::string>(200, longest), {"Courier New", 8, true});
  const auto pages = Read(file);
  // 297 mm without two margins of 4.5, in lines of 8 x 1.085 points.
  EXPECT_EQ(pages.size(), std::size_t{3});
  EXPECT_EQ(Lines(pages[0]).size(), std::size_t{94});
  EXPECT_EQ(Lines(pages[2]).size(), std::size_t{12});
  const auto last = Lines(pages[1]).back();
  EXPECT_EQ(last.back().text, QStringLiteral("Reçue"));
  for (const Word& word : last) EXPECT_TRUE(QRectF({}, kPaper_mm).adjusted(4.9, 4.4, -4.9, -4.4).contains(word.mm));
}

TEST_F(PrinterTest, EachJobHasItsFileAndADiscardedOneHasNone) {
  const PrinterFont font{"Courier New", 11, false};
  QFile older(File("Essai.pdf"));
  EXPECT_TRUE(older.open(QIODevice::WriteOnly) && older.write("avant") == 5);
  older.close();
  folder.Write("Essai-2.pdf", "d'un autre jour");
  printer.answer = File("Essai.pdf");
  EXPECT_TRUE(printer.Choose());
  printer.PrintLine("perdue");
  printer.DiscardJob();
  printer.EndJob();
  EXPECT_EQ(folder.Read("Essai.pdf"), std::string("avant"));
  Print({"une"}, font);
  // Cancelled: on goes the printer last in force, and what it has printed stays.
  printer.answer.clear();
  EXPECT_FALSE(printer.Choose());
  Print({"deux"}, font);
  EXPECT_EQ(Read(File("Essai.pdf"))[0][0].text, QStringLiteral("une"));
  EXPECT_EQ(folder.Read("Essai-2.pdf"), std::string("d'un autre jour"));
  EXPECT_EQ(Read(File("Essai-3.pdf"))[0][0].text, QStringLiteral("deux"));
  EXPECT_TRUE(messages.boxes.empty());
}

TEST_F(PrinterTest, WhatCannotBePrintedFails) {
  const PrinterFont font{"Courier New", 11, false};
  printer.PrintTo(File("absent/Essai.pdf"));
  EXPECT_EQ(ErrorOf([&] { Print({"une"}, font); }), 75);
  printer.PrintTo(QStringLiteral("/dev/full"));
  EXPECT_EQ(ErrorOf([&] { Print({"une"}, font); }), 57);
  if (!QPrinterInfo::availablePrinterNames().isEmpty()) GTEST_SKIP() << "This system has a printer.";
  AnsweredPrinter none(windows, messages);
  EXPECT_EQ(ErrorOf([&] { none.PrintLine("une"); }), 68);
  // Where there is no printer at all, a cancelled dialog leads to a file, and the user is told of it.
  EXPECT_FALSE(none.Choose());
  EXPECT_EQ(messages.boxes.size(), std::size_t{1});
  const std::string& told = messages.boxes.front().text;
  const QString file = ToQt(told.substr(told.find('/')));
  none.PrintLine("une");
  none.EndJob();
  EXPECT_EQ(Read(file).at(0).at(0).text, QStringLiteral("une"));
  EXPECT_TRUE(QFile::remove(file));
}

}  // namespace
}  // namespace vorelio::tests
