#pragma once

#include <QPrinter>
#include <memory>
#include <string>
#include <vector>

#include "platform/platform.h"

class QPrintDialog;

namespace vorelio {

class QtWindows;

/// The system's printers and its PDF output.
///
/// A job is kept until it ends: one that is discarded leaves no trace, neither on a printer nor on the disk. Lines are
/// set at a fixed pitch, a line that would run over the paper's edge narrower than the others.
///
/// In PDF each job is a file of its own, the first one under the name that was chosen, the next ones under that name
/// and the first number from 2 on that is still free. Where the dialog is cancelled, the printer last in force is used;
/// where there has never been one, the pages go to "Vorelio.pdf" among the user's documents, or in his home, and he is
/// told so.
class QtPrinter : public PrinterService {
 public:
  QtPrinter(QtWindows& windows, MessageService& messages) : windows_(windows), messages_(messages) {}

  bool Choose() override;
  PrinterFont Font() override { return font_; }
  void SetFont(const PrinterFont& font) override { font_ = font; }
  /// Error 68 if there is neither a printer nor a file to print to.
  void PrintLine(const std::string& text) override;
  /// Error 68 if the printer doesn't take the job, 75 if the file can't be written, 57 if one of them fails on the way.
  void EndJob() override;
  void DiscardJob() override { job_.clear(); }

  /// Prints to PDF from now on, the first job into this file.
  void PrintTo(const QString& file);

 protected:
  /// Shows the dialog; true if it was accepted.
  virtual bool Execute(QPrintDialog& dialog);

 private:
  struct Line {
    std::string text;
    PrinterFont font;
  };

  QPrinter& Target();
  bool Ready();
  QString NextFile() const;
  void Print(const std::vector<Line>& lines);

  QtWindows& windows_;
  MessageService& messages_;
  PrinterFont font_{"Arial", 10, false};
  std::unique_ptr<QPrinter> printer_;
  QString file_;     ///< PDF output goes here; empty for a printer.
  int printed_ = 0;  ///< Jobs since the file was chosen.
  std::vector<Line> job_;
};

}  // namespace vorelio
