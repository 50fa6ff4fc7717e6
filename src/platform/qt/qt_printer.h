#pragma once

#include <QPainter>
#include <QPrinter>
#include <memory>

#include "platform/platform.h"

namespace vorelio {

class QtWindows;

/// The system's printers and its PDF output.
class QtPrinter : public PrinterService {
 public:
  explicit QtPrinter(QtWindows& windows) : windows_(windows) {}
  ~QtPrinter() override;

  bool Choose() override;
  PrinterFont Font() override { return font_; }
  void SetFont(const PrinterFont& font) override { font_ = font; }
  void PrintLine(const std::string& text) override;
  void EndJob() override;
  void DiscardJob() override;

 private:
  QPrinter& Target();

  QtWindows& windows_;
  PrinterFont font_{"Arial", 10, false};
  std::unique_ptr<QPrinter> printer_;
  QPainter painter_;
  double cursor_mm_ = 0;
};

}  // namespace vorelio
