#include "core/rows.h"

namespace vorelio {

void Rows::Reserve(std::size_t rows, std::size_t characters) {
  ends_.reserve(rows);
  texts_.reserve(characters);
}

void Rows::Clear() {
  ends_.clear();
  texts_.clear();
}

void Rows::Append(std::string_view text) {
  texts_.append(text);
  ends_.push_back(texts_.size());
}

void Rows::Insert(std::size_t row, std::string_view text) {
  const std::size_t begin = Begin(row);
  texts_.insert(begin, text);
  ends_.insert(ends_.begin() + static_cast<std::ptrdiff_t>(row), begin);
  Shift(row, text.size());
}

void Rows::Erase(std::size_t row) {
  const std::size_t begin = Begin(row), length = ends_[row] - begin;
  texts_.erase(begin, length);
  ends_.erase(ends_.begin() + static_cast<std::ptrdiff_t>(row));
  Shift(row, 0 - length);
}

void Rows::Replace(std::size_t row, std::string_view text) {
  const std::size_t begin = Begin(row), length = ends_[row] - begin;
  texts_.replace(begin, length, text);
  if (text.size() != length) Shift(row, text.size() - length);
}

void Rows::WriteOver(std::size_t row, std::string_view head) { texts_.replace(Begin(row), head.size(), head); }

// Backwards too: unsigned numbers wrap around.
void Rows::Shift(std::size_t row, std::size_t by) {
  for (std::size_t i = row; i < ends_.size(); ++i) ends_[i] += by;
}

}  // namespace vorelio
