#include "qt/qt_text.h"

#include <QList>

#include "core/text.h"

namespace vorelio {

QString ToQt(std::string_view text) {
  QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
  QChar* place = result.data();
  for (const char byte : text) *place++ = QChar(static_cast<char16_t>(Point_1252(byte)));
  return result;
}

std::string FromQt(const QString& text) {
  std::string result;
  for (const char32_t point : text.normalized(QString::NormalizationForm_C).toUcs4())
    result += Octet_1252(point).value_or('?');
  return result;
}

std::optional<std::string> FromQtExact(const QString& text) {
  std::string result;
  for (const char32_t point : text.normalized(QString::NormalizationForm_C).toUcs4()) {
    const auto byte = Octet_1252(point);
    if (!byte) return std::nullopt;
    result += *byte;
  }
  return result;
}

QString FirstForeign(const QString& text) {
  for (const char32_t point : text.normalized(QString::NormalizationForm_C).toUcs4())
    if (!Octet_1252(point)) return QString::fromUcs4(&point, 1);
  return {};
}

QString Escaped(const QString& caption) { return QString(caption).replace(u'&', QStringLiteral("&&")); }

QString WithoutMnemonic(const QString& text) {
  QString words;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == u'&' && i + 1 < text.size()) ++i;
    words += text[i];
  }
  return words;
}

}  // namespace vorelio
