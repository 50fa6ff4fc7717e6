#include "qt/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <utility>

#include "core/text.h"
#include "qt/qt_text.h"

namespace vorelio {

// Other programs of this desktop end their lines in LF alone, the program's texts in CR LF.

std::string QtClipboard::Text() {
  QString text = QGuiApplication::clipboard()->text();
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
  text.replace(u'\n', QStringLiteral("\r\n"));
  if (auto exact = FromQtExact(text)) return *std::move(exact);
  messages_.Show(
      "Le presse-papiers comporte des caractères que Vorelio ne peut pas noter ;\r\n"
      "ils sont remplacés par « ? »."_t);
  return FromQt(text);
}

void QtClipboard::SetText(const std::string& text) {
  QGuiApplication::clipboard()->setText(ToQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

void QtClipboard::Clear() { QGuiApplication::clipboard()->clear(); }

}  // namespace vorelio
