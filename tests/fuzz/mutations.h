#pragma once

#include <random>
#include <string>
#include <string_view>

namespace vorelio::tests {

/// Random files, and files that were good before: for where no fuzzer chooses the bytes.
class Mutations {
 public:
  explicit Mutations(unsigned seed) : random_(seed) {}

  std::string Next(std::string_view good) {
    std::string file = Below(8) == 0 ? Noise() : std::string(good);
    for (int i = Below(6); i >= 0; --i) Mutate(file, good);
    return file;
  }

 private:
  static constexpr std::string_view kMarks[] = {
      "\r\n", "\n", "\r", "<", ">", ";", " ", "/", ":", "-", "99", "00", "\xE9", "\xC3\xA9", "\xEF\xBB\xBF", "1E999"};
  static constexpr std::string_view kParts[] = {
      "<EOH>\r\n",         "<STATE:0><",  "<STATE:2>0",       "01/01/50  XXXXXX",
      "<FREQ:3>144",       "<FREQ:0>",    "<STX:9>123456789", "<MODE:12>LONGLONGLONG",
      "PBand=144 MHz\r\n", "[QSORecords", "20510101"};

  std::size_t Place(std::string_view text) {
    return static_cast<std::size_t>(Below(static_cast<int>(text.size()) + 1));
  }
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  std::string Noise() {
    std::string noise;
    for (int i = Below(400); i > 0; --i) noise += static_cast<char>(Below(256));
    return noise;
  }

  template <std::size_t N>
  std::string_view OneOf(const std::string_view (&pieces)[N]) {
    return pieces[random_() % N];
  }

  void Mutate(std::string& file, std::string_view good) {
    const std::size_t place = Place(file), other = Place(good);
    switch (Below(6)) {
      case 0: file.erase(place, static_cast<std::size_t>(Below(20))); break;
      case 1: file.insert(place, Below(2) == 0 ? OneOf(kMarks) : OneOf(kParts)); break;
      case 2: file.insert(place, good.substr(other, static_cast<std::size_t>(Below(80)))); break;
      case 3: file.resize(place); break;
      case 4:
        if (place < file.size()) file[place] = static_cast<char>(Below(256));
        break;
      case 5:
        if (place < file.size()) file[place] = static_cast<char>(file[place] ^ 1 << Below(8));
        break;
    }
  }

  std::mt19937 random_;
};

}  // namespace vorelio::tests
