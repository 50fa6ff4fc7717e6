#include "platform/qt/qt_printer.h"

#include <QApplication>
#include <QFont>
#include <QFontMetricsF>
#include <QPrintDialog>

#include "core/errors.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/qt_windows.h"

namespace vorelio {

namespace {

constexpr double kMargin_mm = 4.5;
/// A line's height, in font sizes: with it the rows of labels keep to the pitch of their sheets.
constexpr double kAdvance = 1.085;
constexpr double kPoint_mm = 25.4 / 72;

}  // namespace

QtPrinter::~QtPrinter() { DiscardJob(); }

QPrinter& QtPrinter::Target() {
  if (!printer_) {
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer_->setPageSize(QPageSize(QPageSize::A4));
    printer_->setFullPage(true);
  }
  return *printer_;
}

bool QtPrinter::Choose() {
  windows_.ShowPending();
  QPrintDialog dialog(&Target(), QApplication::activeWindow());
  return dialog.exec() == QDialog::Accepted;
}

void QtPrinter::PrintLine(const std::string& text) {
  QPrinter& printer = Target();
  if (!painter_.isActive()) {
    if (!painter_.begin(&printer)) throw Erreur_Execution(Erreur::Peripherique_Absent);
    cursor_mm_ = kMargin_mm;
  }
  const double advance_mm = font_.size * kAdvance * kPoint_mm;
  const double dots_per_mm = printer.resolution() / 25.4;
  if (cursor_mm_ + advance_mm > printer.pageLayout().fullRect(QPageLayout::Millimeter).height() - kMargin_mm) {
    printer.newPage();
    cursor_mm_ = kMargin_mm;
  }
  QFont font(ToQt(font_.name));
  font.setStyleHint(QFont::TypeWriter);
  font.setPointSizeF(font_.size);
  font.setBold(font_.bold);
  painter_.setFont(font);
  painter_.drawText(
      QPointF(kMargin_mm * dots_per_mm, cursor_mm_ * dots_per_mm + QFontMetricsF(font, &printer).ascent()), ToQt(text));
  cursor_mm_ += advance_mm;
}

void QtPrinter::EndJob() {
  if (painter_.isActive() && !painter_.end()) throw Erreur_Execution(Erreur::Peripherique);
}

void QtPrinter::DiscardJob() {
  if (!painter_.isActive()) return;
  printer_->abort();
  painter_.end();
}

}  // namespace vorelio
