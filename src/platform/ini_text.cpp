#include "platform/ini_text.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "core/text.h"

namespace vorelio {

namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";
constexpr std::string_view kHex = "0123456789ABCDEF";

/// The escapes of a value and what they stand for.
constexpr std::string_view kEscapes = "abfnrtv\"\\";
constexpr std::string_view kEscaped = "\a\b\f\n\r\t\v\"\\";

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const auto start = text.find_first_not_of(kBlanks);
  if (start == std::string_view::npos) return {};
  return text.substr(start, text.find_last_not_of(kBlanks) - start + 1);
}

int HexDigit(char c) {
  const auto place = kHex.find(static_cast<char>(std::toupper(static_cast<unsigned char>(c))));
  return place == std::string_view::npos ? -1 : static_cast<int>(place);
}

/// The number that up to `digits` hexadecimal digits from `place` on make; `place` is behind them then. Nothing if
/// there is no digit.
std::optional<char32_t> HexNumber(std::string_view text, std::size_t& place, int digits) {
  std::optional<char32_t> number;
  for (; digits > 0 && place < text.size() && HexDigit(text[place]) >= 0; --digits)
    number = std::min<char32_t>(number.value_or(0) * 16 + static_cast<char32_t>(HexDigit(text[place++])), 0x110000);
  return number;
}

std::string Hex(char32_t number, int digits) {
  std::string text;
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) text += kHex[number >> shift & 15];
  return text;
}

// --- Names ----------------------------------------------------------------------------------------------------------

bool Plain(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_' || c == '-' || c == '.'; }

std::string NameToFile(std::string_view name) {
  std::string text;
  for (const char c : name) {
    const char32_t point = Point_1252(c);
    if (static_cast<unsigned char>(c) < 0x80 && Plain(c)) {
      text += c;
    } else if (c == '/') {
      text += '\\';
    } else {
      text.append(point > 0xFF ? "%U" : "%").append(Hex(point, point > 0xFF ? 4 : 2));
    }
  }
  return text;
}

std::string NameFromFile(std::string_view text) {
  std::string name;
  for (std::size_t i = 0; i < text.size();) {
    const char c = text[i++];
    name += c == '\\' ? '/' : c;
    if (c != '%') continue;
    const bool wide = i < text.size() && text[i] == 'U';
    std::size_t behind = i + (wide ? 1 : 0);
    const std::size_t start = behind;
    const auto point = HexNumber(text, behind, wide ? 4 : 2);
    const auto octet = point && behind - start == (wide ? 4U : 2U) ? Octet_1252(*point) : std::nullopt;
    if (!octet) continue;
    name.back() = *octet;
    i = behind;
  }
  return name;
}

/// "General" by itself is the section of what has none.
std::string Header(const std::string& section) {
  return (Majuscules(section) == "GENERAL" ? "[%" : "[") + NameToFile(section) + "]";
}

std::optional<std::string> SectionOf(std::string_view line) {
  const std::string_view header = Trimmed(line);
  if (!header.starts_with('[')) return std::nullopt;
  const std::string_view name = Trimmed(header.substr(1, header.find(']') - 1));
  const std::string capitals = Majuscules(name);
  if (capitals == "GENERAL") return std::string();
  return NameFromFile(capitals == "%GENERAL" ? name.substr(1) : name);
}

std::optional<std::string> KeyOf(std::string_view line) {
  const std::string_view text = Trimmed(line);
  const auto equals = text.find('=');
  if (equals == std::string_view::npos || text.starts_with(';')) return std::nullopt;
  return NameFromFile(Trimmed(text.substr(0, equals)));
}

// --- Values ---------------------------------------------------------------------------------------------------------

std::string ValueToFile(const std::string& value) {
  // What begins with "@" is a value of another kind, and so is what holds a zero.
  const bool zero = value.find('\0') != std::string::npos;
  const std::string whole = zero ? "@String(" + value + ")" : value.starts_with('@') ? "@" + value : value;
  std::string text;
  bool after_number = false;
  for (const char c : whole) {
    const auto escape = kEscaped.find(c);
    const bool number =
        (static_cast<unsigned char>(c) < ' ' && escape == std::string_view::npos) || (after_number && HexDigit(c) >= 0);
    if (number) {
      text.append("\\x").append(Hex(static_cast<unsigned char>(c), 2));
    } else if (escape != std::string_view::npos) {
      text.append(1, '\\').append(1, kEscapes[escape]);
    } else {
      text.append(Vers_Utf8(std::string_view(&c, 1)));
    }
    after_number = number;
  }
  const bool quotes = text.find_first_of(";,=") != std::string::npos || text.starts_with(' ') || text.ends_with(' ');
  return quotes ? "\"" + text + "\"" : text;
}

/// The text of a value as it stands in the file, in UTF-8, without its quotes and escapes; nothing for a list.
std::optional<std::string> Unescaped(std::string_view text) {
  std::string value;
  std::size_t kept = 0;  // What stood in quotes or behind a stroke isn't trimmed.
  bool quoted = false;
  for (std::size_t i = 0; i < text.size();) {
    const char c = text[i++];
    if (c == '"') {
      quoted = !quoted;
    } else if (c == ',' && !quoted) {
      return std::nullopt;
    } else if (c == ';' && !quoted) {
      break;
    } else if (c == '\\' && i < text.size()) {
      const char sign = text[i++];
      const auto escape = kEscapes.find(sign);
      if (sign == 'x' || sign == '0') {
        const auto point = sign == '0' ? std::optional<char32_t>(0) : HexNumber(text, i, 8);
        const auto octet = point ? Octet_1252(*point) : std::nullopt;
        if (!octet) return std::nullopt;
        value += Vers_Utf8(std::string_view(&*octet, 1));
      } else if (escape != std::string_view::npos) {
        value += kEscaped[escape];
      } else {
        // A path written by hand.
        value.append(1, c).append(1, sign);
      }
    } else {
      value += c;
      if (!quoted) continue;
    }
    kept = value.size();
  }
  value.resize(std::max(kept, value.find_last_not_of(" \t") + 1));
  return value;
}

std::optional<std::string> ValueFromFile(std::string_view text) {
  const auto bytes = Unescaped(Trimmed(text));
  if (!bytes) return std::nullopt;
  auto value = De_Utf8_Exact(*bytes);
  if (!value || !value->starts_with('@')) return value;
  if (value->starts_with("@@")) return value->substr(1);
  constexpr std::string_view kText = "@String(";
  if (value->starts_with(kText) && value->ends_with(')'))
    return value->substr(kText.size(), value->size() - kText.size() - 1);
  return std::nullopt;
}

}  // namespace

IniText::IniText(std::string_view bytes) {
  if (bytes.starts_with(kMark)) bytes.remove_prefix(kMark.size());
  for (Lecteur_Lignes lines(bytes); !lines.Fini();) lines_.emplace_back(lines.Suivante());
}

int IniText::Find(const std::string& section, const std::string& key, int& end) const {
  int found = -1;
  bool within = false;
  end = -1;
  for (int i = 0; i < static_cast<int>(lines_.size()); ++i) {
    const std::string& line = lines_[static_cast<std::size_t>(i)];
    if (const auto name = SectionOf(line)) within = *name == section;
    if (!within) continue;
    if (!Trimmed(line).empty()) end = i + 1;
    if (KeyOf(line) == key) found = i;
  }
  return found;
}

std::optional<std::string> IniText::Value(const std::string& section, const std::string& key) const {
  int end = 0;
  const int found = Find(section, key, end);
  if (found < 0) return std::nullopt;
  const std::string& line = lines_[static_cast<std::size_t>(found)];
  return ValueFromFile(std::string_view(line).substr(line.find('=') + 1));
}

void IniText::SetValue(const std::string& section, const std::string& key, const std::string& value) {
  const std::string line = NameToFile(key) + "=" + ValueToFile(value);
  int end = 0;
  const int found = Find(section, key, end);
  if (found >= 0) {
    lines_[static_cast<std::size_t>(found)] = line;
  } else if (end >= 0) {
    lines_.insert(lines_.begin() + end, line);
  } else {
    if (!lines_.empty()) lines_.emplace_back();
    lines_.push_back(Header(section));
    lines_.push_back(line);
  }
}

std::string IniText::Bytes() const {
  std::string bytes;
  for (const std::string& line : lines_) bytes.append(line).append(1, '\n');
  return bytes;
}

}  // namespace vorelio
