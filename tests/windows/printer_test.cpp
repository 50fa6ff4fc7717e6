#include <QDir>
#include <QFile>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <algorithm>

#include "core/errors.h"
#include "core/log_line.h"
#include "core/text.h"
#include "entry/ddfm.h"
#include "platform/qt/qt_printer.h"
#include "platform/qt/qt_text.h"
#include "printing/labels_window.h"
#include "printing/select_qso_window.h"
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
std::string Contact(int n) {
  Champs_QSO qso;
  qso.Date_A = "12/05/03";
  qso.Indicatif_A = std::string("F9A") + static_cast<char>('A' + n) + std::string("/MM/QRP/A").substr(0, n % 8);
  qso.Debut_A = "14:" + Deux_Chiffres(n);
  qso.Bande_A = n % 2 ? "1.8 Mhz" : "24 Ghz";
  qso.Mode_A = n % 3 ? "CW" : "PACKET";
  qso.RSTR_A = n % 5 ? "59" : "59+40 dB";
  qso.QTH_A = n % 4 ? "DFCF 33012" : "DFCF 3301234";
  return Construit_Ligne(qso);
}

int CountWords(const std::string& text) { return static_cast<int>(ToQt(text).split(u' ', Qt::SkipEmptyParts).size()); }

#define VERIFY_ERROR(action, number)          \
  do {                                        \
    int found = 0;                            \
    try {                                     \
      action;                                 \
    } catch (const Erreur_Execution& error) { \
      found = error.Numero();                 \
    }                                         \
    QCOMPARE(found, number);                  \
  } while (false)

}  // namespace

class PrinterTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void LabelsStayOnTheirSheets_data() {
    QTest::addColumn<int>("sheet");
    QTest::addColumn<int>("count");
    for (int sheet = 0; sheet < 4; ++sheet)
      for (const int count : {16, 17}) QTest::addRow("sheet %d, %d labels", sheet + 1, count) << sheet << count;
  }
  void LabelsStayOnTheirSheets() {
    QFETCH(int, sheet);
    QFETCH(int, count);
    Paper paper;
    paper.printer.answer = paper.File("Etiquettes.pdf");
    std::string log;
    std::vector<std::string> contacts;
    for (int n = 0; n < count; ++n) log += contacts.emplace_back(Contact(n)) + "\r\n";
    paper.disk.WriteAll(paper.programme.Chemin_Log("F9QZX"), log);
    Programme programme({paper.settings, paper.messages, paper.dialogs, paper.clock, paper.windows, paper.disk,
                         paper.printer, paper.devices.serial, paper.devices.pages, paper.devices.sounds,
                         paper.devices.clipboard, paper.devices.documents, paper.folder.Path()});
    programme.contexte.Station_Indicatif = "F9QZX_P";
    paper.disk.Copy(paper.programme.Chemin_Log("F9QZX"), programme.Chemin_Log("F9QZX_P"));
    paper.windows.Deliver(programme, [&] {
      auto& selection = programme.Fenetre<Select_QSO>();
      selection.Show();
      while (selection.Liste_QSO.Count() > 0) selection.Liste_QSO.UserSelect(0);
      auto& labels = programme.Fenetre<Etiquettes>();
      labels.Show();
      labels.RxTx.UserText("FT-847 + ampli.", 0);
      labels.Antenne.UserText("2 x 9 element", 0);
      OptionButton* models[] = {&labels.Etiqu_1, &labels.Etiqu_2, &labels.Etiqu_3, &labels.Etiqu_4};
      models[sheet]->UserClick();
      labels.Imprime.UserClick();
    });
    QCOMPARE(programme.Erreur_Fatale(), 0);
    QCOMPARE(QFile::exists(paper.File("Etiquettes-2.pdf")), count > 16);
    QVERIFY(!QFile::exists(paper.File("Etiquettes-3.pdf")));

    const Textes_Etiquette texts{"F9QZX_P", "FT-847 + ampli.", "2 x 9 element"};
    for (int first = 0; first < count; first += 16) {
      const auto pages = Read(paper.File(first == 0 ? "Etiquettes.pdf" : "Etiquettes-2.pdf"));
      QCOMPARE(pages.size(), std::size_t{1});
      const auto lines = Lines(pages.front());
      const int rows = (std::min(count - first, 16) + 1) / 2;
      QCOMPARE(lines.size(), static_cast<std::size_t>(rows) * 5);
      for (std::size_t i = 0; i < lines.size(); ++i) {
        const int row = static_cast<int>(i / 5), left = first + 2 * row;
        const auto text = [&](int n, Cote side) {
          const std::string line = n < count ? Colonne_Numero(n + 1) + contacts[static_cast<std::size_t>(n)] : "";
          return Compose_Etiquette(Lit_Contact(line), texts, Type_Etiquette::Activation, side,
                                   kFeuilles[static_cast<std::size_t>(sheet)].titre)[i % 5];
        };
        const auto on_left = static_cast<std::size_t>(CountWords(text(left, Cote::Gauche)));
        QCOMPARE(lines[i].size(), on_left + static_cast<std::size_t>(CountWords(text(left + 1, Cote::Droite))));
        for (std::size_t w = 0; w < lines[i].size(); ++w) {
          const QRectF label = kSheets[sheet].Label(row, w < on_left ? 0 : 1);
          const QRectF& mm = lines[i][w].mm;
          const QString seen = QStringLiteral("%1: %2 %3 - %4 %5, row %6")
                                   .arg(lines[i][w].text)
                                   .arg(mm.left())
                                   .arg(mm.top())
                                   .arg(mm.right())
                                   .arg(mm.bottom())
                                   .arg(row);
          QVERIFY2(label.contains(mm), qPrintable(seen));
        }
      }
    }
  }

  void LinesRunDownThePagesAndAreCutNowhere() {
    Paper paper;
    const QString file = paper.File("Liste.pdf");
    paper.printer.PrintTo(file);
    const std::string longest = "    1 " + std::string(54, 'M') + " " + std::string(53, 'W') + " Reçue"_t;
    QCOMPARE(longest.size(), std::size_t{120});
    paper.Print(std::vector<std::string>(200, longest), {"Courier New", 8, true});
    const auto pages = Read(file);
    // 297 mm without two margins of 4.5, in lines of 8 x 1.085 points.
    QCOMPARE(pages.size(), std::size_t{3});
    QCOMPARE(Lines(pages[0]).size(), std::size_t{94});
    QCOMPARE(Lines(pages[2]).size(), std::size_t{12});
    const auto last = Lines(pages[1]).back();
    QCOMPARE(last.back().text, QStringLiteral("Reçue"));
    for (const Word& word : last) QVERIFY(QRectF({}, kPaper_mm).adjusted(4.9, 4.4, -4.9, -4.4).contains(word.mm));
  }

  void EachJobHasItsFileAndADiscardedOneHasNone() {
    Paper paper;
    const PrinterFont font{"Courier New", 11, false};
    QFile older(paper.File("Essai.pdf"));
    QVERIFY(older.open(QIODevice::WriteOnly) && older.write("avant") == 5);
    older.close();
    paper.folder.Write("Essai-2.pdf", "d'un autre jour");
    paper.printer.answer = paper.File("Essai.pdf");
    QVERIFY(paper.printer.Choose());
    paper.printer.PrintLine("perdue");
    paper.printer.DiscardJob();
    paper.printer.EndJob();
    QCOMPARE(paper.folder.Read("Essai.pdf"), std::string("avant"));
    paper.Print({"une"}, font);
    // Cancelled: on goes the printer last in force, and what it has printed stays.
    paper.printer.answer.clear();
    QVERIFY(!paper.printer.Choose());
    paper.Print({"deux"}, font);
    QCOMPARE(Read(paper.File("Essai.pdf"))[0][0].text, QStringLiteral("une"));
    QCOMPARE(paper.folder.Read("Essai-2.pdf"), std::string("d'un autre jour"));
    QCOMPARE(Read(paper.File("Essai-3.pdf"))[0][0].text, QStringLiteral("deux"));
    QVERIFY(paper.messages.boxes.empty());
  }

  void WhatCannotBePrintedFails() {
    Paper paper;
    const PrinterFont font{"Courier New", 11, false};
    paper.printer.PrintTo(paper.File("absent/Essai.pdf"));
    VERIFY_ERROR(paper.Print({"une"}, font), 75);
    paper.printer.PrintTo(QStringLiteral("/dev/full"));
    VERIFY_ERROR(paper.Print({"une"}, font), 57);
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) QSKIP("This system has a printer.");
    AnsweredPrinter none(paper.windows, paper.messages);
    VERIFY_ERROR(none.PrintLine("une"), 68);
    // Where there is no printer at all, a cancelled dialog leads to a file, and the user is told of it.
    QVERIFY(!none.Choose());
    QCOMPARE(paper.messages.boxes.size(), std::size_t{1});
    const std::string& told = paper.messages.boxes.front().text;
    const QString file = ToQt(told.substr(told.find('/')));
    none.PrintLine("une");
    none.EndJob();
    QCOMPARE(Read(file).at(0).at(0).text, QStringLiteral("une"));
    QVERIFY(QFile::remove(file));
  }
};

const InSuite<PrinterTest> kPrinterTest;

}  // namespace vorelio::tests

#include "printer_test.moc"
