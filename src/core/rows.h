#pragma once

#include <compare>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace vorelio {

/// The texts of a list, one after another in one piece of memory: a log has up to 99,999, and a memory block for each
/// would cost more time and room than the texts. What they are read by looks into the rows, until the next change.
class Rows {
 public:
  class Iterator;

  std::size_t Size() const { return ends_.size(); }
  bool empty() const { return ends_.empty(); }
  std::string_view operator[](std::size_t row) const {
    const std::size_t begin = Begin(row);
    return std::string_view(texts_).substr(begin, ends_[row] - begin);
  }
  Iterator begin() const;
  Iterator end() const;

  /// Takes the room for so many rows of so many characters in all.
  void Reserve(std::size_t rows, std::size_t characters);
  void Clear();
  void Append(std::string_view text);
  void Insert(std::size_t row, std::string_view text);
  void Erase(std::size_t row);
  void Replace(std::size_t row, std::string_view text);
  /// Puts `head` in the place of as many characters at the beginning of a row that is at least as long.
  void WriteOver(std::size_t row, std::string_view head);

 private:
  /// The rows from `row` on have moved by so many characters.
  void Shift(std::size_t row, std::size_t by);
  std::size_t Begin(std::size_t row) const { return row == 0 ? 0 : ends_[row - 1]; }

  std::string texts_;
  std::vector<std::size_t> ends_;
};

/// Goes through rows as through a vector of texts; what it points to is made at each look.
class Rows::Iterator {
 public:
  using iterator_category = std::random_access_iterator_tag;
  using value_type = std::string_view;
  using difference_type = std::ptrdiff_t;
  using pointer = void;
  using reference = std::string_view;

  Iterator() = default;
  Iterator(const Rows& rows, std::size_t row) : rows_(&rows), row_(static_cast<difference_type>(row)) {}

  reference operator*() const { return (*rows_)[static_cast<std::size_t>(row_)]; }
  reference operator[](difference_type step) const { return *(*this + step); }

  Iterator& operator+=(difference_type step) {
    row_ += step;
    return *this;
  }
  Iterator& operator-=(difference_type step) { return *this += -step; }
  Iterator& operator++() { return *this += 1; }
  Iterator& operator--() { return *this -= 1; }
  Iterator operator++(int) {
    const Iterator before = *this;
    ++*this;
    return before;
  }
  Iterator operator--(int) {
    const Iterator before = *this;
    --*this;
    return before;
  }
  friend Iterator operator+(Iterator place, difference_type step) { return place += step; }
  friend Iterator operator+(difference_type step, Iterator place) { return place += step; }
  friend Iterator operator-(Iterator place, difference_type step) { return place -= step; }
  friend difference_type operator-(const Iterator& a, const Iterator& b) { return a.row_ - b.row_; }
  friend bool operator==(const Iterator& a, const Iterator& b) { return a.row_ == b.row_; }
  friend auto operator<=>(const Iterator& a, const Iterator& b) { return a.row_ <=> b.row_; }

 private:
  const Rows* rows_ = nullptr;
  difference_type row_ = 0;
};

inline Rows::Iterator Rows::begin() const { return {*this, 0}; }
inline Rows::Iterator Rows::end() const { return {*this, Size()}; }

}  // namespace vorelio
