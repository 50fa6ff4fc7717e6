#include "qt/qt_printer.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QGlyphRun>
#include <QPainter>
#include <QPrintDialog>
#include <QRawFont>
#include <QStandardPaths>
#include <algorithm>
#include <array>
#include <map>
#include <tuple>
#include <utility>

#include "core/errors.h"
#include "core/text.h"
#include "qt/qt_text.h"
#include "qt/qt_windows.h"

namespace vorelio {

namespace {

/// Of the page's head and foot.
constexpr double kMargin_mm = 4.5;
/// Of both sides. Between 4.65 and 5.3 the texts of both columns stand on labels that are cut 4.65 mm from the edge.
constexpr double kSide_mm = 5;
/// A line's height, in font sizes: with it the rows of labels keep to the pitch of their sheets.
constexpr double kAdvance = 1.085;
/// A character's width, in font sizes, in Courier New and its metric twins.
constexpr double kPitch = 0.6;
constexpr double kPoint_mm = 25.4 / 72;
constexpr double kInch_mm = 25.4;

/// A font as the pages need it: its glyphs by the program's own characters.
struct Face {
  QRawFont font;
  std::array<quint32, 256> glyphs{};
};

Face MakeFace(const PrinterFont& wanted, double dots_per_point) {
  QFont font;
  font.setFamilies({ToQt(wanted.name), QStringLiteral("Liberation Mono"), QStringLiteral("DejaVu Sans Mono")});
  font.setStyleHint(QFont::TypeWriter);
  font.setFixedPitch(true);
  font.setBold(wanted.bold);
  Face face;
  face.font = QRawFont::fromFont(font);
  face.font.setPixelSize(wanted.size * dots_per_point);
  for (std::size_t i = 0; i < face.glyphs.size(); ++i) {
    const QString character = ToQt(std::string(1, static_cast<char>(i)));
    const QList<quint32> found = face.font.glyphIndexesForString(character);
    if (i > ' ' && !found.isEmpty()) face.glyphs[i] = found.constFirst();
  }
  return face;
}

/// A text cursor that runs down the pages of a job.
class Pages {
 public:
  explicit Pages(QPrinter& printer)
      : printer_(printer),
        painter_(&printer),
        dots_per_mm_(printer.resolution() / kInch_mm),
        paper_mm_(printer.pageLayout().fullRect(QPageLayout::Millimeter).size()) {}

  bool Open() const { return painter_.isActive(); }
  bool Close() { return painter_.end(); }

  /// False if the printer takes no further page.
  bool Print(const std::string& text, const PrinterFont& font) {
    const double advance_mm = font.size * kAdvance * kPoint_mm;
    if (y_mm_ > kMargin_mm && y_mm_ + advance_mm > paper_mm_.height() - kMargin_mm) {
      if (!printer_.newPage()) return false;
      y_mm_ = kMargin_mm;
      // The windows go on being painted and the clocks ticking; what the user does waits.
      QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    Draw(text, font);
    y_mm_ += advance_mm;
    return true;
  }

 private:
  void Draw(std::string_view text, const PrinterFont& font) {
    const auto end = text.find_last_not_of(' ');
    if (end == std::string_view::npos) return;
    text = text.substr(0, end + 1);
    const Face& face = FaceOf(font);
    const double pitch_mm = font.size * kPitch * kPoint_mm;
    QList<quint32> glyphs;
    QList<QPointF> places;
    for (std::size_t i = 0; i < text.size(); ++i) {
      const quint32 glyph = face.glyphs[static_cast<unsigned char>(text[i])];
      if (glyph == 0) continue;
      glyphs.append(glyph);
      places.append({static_cast<double>(i) * pitch_mm * dots_per_mm_, 0});
    }
    QGlyphRun run;
    run.setRawFont(face.font);
    run.setGlyphIndexes(glyphs);
    run.setPositions(places);
    painter_.save();
    // The text stands in the middle of its line, which is a little lower than the font.
    const double line = font.size * kAdvance * kPoint_mm * dots_per_mm_, high = face.font.ascent(),
                 deep = face.font.descent();
    painter_.translate(kSide_mm * dots_per_mm_, y_mm_ * dots_per_mm_ + (line - high - deep) / 2 + high);
    const double width_mm = static_cast<double>(text.size()) * pitch_mm, room_mm = paper_mm_.width() - 2 * kSide_mm;
    if (width_mm > room_mm) painter_.scale(room_mm / width_mm, 1);
    painter_.drawGlyphRun({}, run);
    painter_.restore();
  }

  const Face& FaceOf(const PrinterFont& font) {
    const auto key = std::tuple(font.name, font.size, font.bold);
    auto place = faces_.find(key);
    if (place == faces_.end()) place = faces_.emplace(key, MakeFace(font, printer_.resolution() / 72.0)).first;
    return place->second;
  }

  QPrinter& printer_;
  QPainter painter_;
  double dots_per_mm_;
  QSizeF paper_mm_;
  double y_mm_ = kMargin_mm;
  std::map<std::tuple<std::string, double, bool>, Face> faces_;
};

struct WaitCursor {
  WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitCursor() { QApplication::restoreOverrideCursor(); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
};

/// Whether a PDF file has been written to its end: the paint engine doesn't tell of a disk that is full.
bool Complete(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  file.seek(std::max<qint64>(0, file.size() - 16));
  return file.read(16).contains("%%EOF");
}

}  // namespace

QPrinter& QtPrinter::Target() {
  if (!printer_) {
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer_->setDocName(QStringLiteral("Vorelio"));
    printer_->setPageSize(QPageSize(QPageSize::A4));
  }
  return *printer_;
}

bool QtPrinter::Ready() {
  return !file_.isEmpty() || (Target().outputFormat() == QPrinter::NativeFormat && Target().isValid());
}

void QtPrinter::PrintTo(const QString& file) {
  file_ = file;
  printed_ = 0;
  Target().setOutputFormat(QPrinter::PdfFormat);
  Target().setOutputFileName(file);
}

bool QtPrinter::Execute(QPrintDialog& dialog) { return dialog.exec() == QDialog::Accepted; }

bool QtPrinter::Choose() {
  windows_.ShowPending();
  QPrinter& printer = Target();
  // The dialog refuses a file in a folder that isn't there.
  QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  if (!documents.exists()) documents.setPath(QDir::homePath());
  const QString proposed = documents.filePath(QStringLiteral("Vorelio.pdf"));
  if (printer.outputFormat() == QPrinter::PdfFormat) printer.setOutputFileName(file_.isEmpty() ? proposed : file_);
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  dialog.setWindowTitle(QStringLiteral("Imprimer"));
  // The program's pages are all printed: there is no range of them to choose.
  dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize |
                    QAbstractPrintDialog::PrintCollateCopies);
  if (auto* range = dialog.findChild<QWidget*>(QStringLiteral("gbPrintRange"))) range->hide();
  if (Execute(dialog)) {
    if (printer.outputFormat() == QPrinter::PdfFormat)
      PrintTo(printer.outputFileName());
    else
      file_.clear();
    return true;
  }
  if (!Ready()) {
    PrintTo(proposed);
    printed_ = QFileInfo::exists(proposed) ? 1 : 0;
    messages_.Show("Aucune imprimante n'est installée : les pages seront dans le fichier\r\n"_t + FromQt(NextFile()));
  }
  return false;
}

QString QtPrinter::NextFile() const {
  if (printed_ == 0) return file_;
  const QFileInfo first(file_);
  const QString ending = first.suffix().isEmpty() ? QString() : u'.' + first.suffix();
  QString next;
  int number = 2;
  do next = first.dir().filePath(first.completeBaseName() + u'-' + QString::number(number++) + ending);
  while (QFileInfo::exists(next));
  return next;
}

void QtPrinter::PrintLine(const std::string& text) {
  if (job_.empty() && !Ready())
    throw Erreur_Execution(Erreur::Peripherique_Absent, "Aucune imprimante n'est installée"_t);
  job_.push_back({text, font_});
}

void QtPrinter::EndJob() {
  if (!job_.empty()) Print(std::exchange(job_, {}));
}

void QtPrinter::Print(const std::vector<Line>& lines) {
  QPrinter& printer = Target();
  // The places are those of the paper, whatever margins a printer's dialog has set.
  printer.setFullPage(true);
  const QString file = file_.isEmpty() ? QString() : NextFile();
  if (!file.isEmpty()) printer.setOutputFileName(file);
  const std::string where = FromQt(file.isEmpty() ? printer.printerName() : file);
  const WaitCursor wait;
  Pages pages(printer);
  if (!pages.Open()) throw Erreur_Execution(file.isEmpty() ? Erreur::Peripherique_Absent : Erreur::Acces_Chemin, where);
  for (const Line& line : lines) {
    if (pages.Print(line.text, line.font)) continue;
    printer.abort();
    throw Erreur_Execution(Erreur::Peripherique, where);
  }
  if (!pages.Close() || printer.printerState() == QPrinter::Error || (!file.isEmpty() && !Complete(file)))
    throw Erreur_Execution(Erreur::Peripherique, where);
  ++printed_;
}

}  // namespace vorelio
