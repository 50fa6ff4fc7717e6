#include "pilot/file_expectations.h"

#include <algorithm>

#include "core/text.h"

namespace vorelio::pilot {

namespace {

/// The lines of a file without their ends.
std::vector<std::string> LinesOf(const std::string& bytes) {
  std::vector<std::string> lines;
  for (Lecteur_Lignes reader(bytes); !reader.Fini();) lines.emplace_back(reader.Suivante());
  return lines;
}

std::string Count(std::size_t number, const std::string& word) {
  return std::to_string(number) + " " + word + (number == 1 ? "" : "s");
}

/// A file that an expectation is about, and how the expectation reads so far.
struct Subject {
  std::string expected;
  std::optional<std::string> bytes;

  /// What is there; a missing file is a `Failure`.
  const std::string& Bytes(const std::string& what) const {
    if (!bytes) Differs(expected + what, "no such file");
    return *bytes;
  }

  std::string Line(int number, const std::string& what) const {
    const auto lines = LinesOf(Bytes(what));
    if (number < 1 || number > static_cast<int>(lines.size())) Differs(expected + what, Count(lines.size(), "line"));
    return lines[static_cast<std::size_t>(number - 1)];
  }
};

void ExpectCount(const Subject& file, const std::string& what, int number, std::size_t found, const std::string& unit) {
  if (found != static_cast<std::size_t>(number)) Differs(file.expected + what, Count(found, unit));
}

void ExpectLine(const Subject& file, Args& args) {
  const int number = args.Number("line");
  const bool part = args.Take("contains");
  const std::string text = args.Text("text");
  args.End();
  const std::string what = " line " + std::to_string(number) + (part ? " containing " : " ") + Shown(text);
  const std::string found = file.Line(number, what);
  if (part ? found.find(text) == std::string::npos : found != text) Differs(file.expected + what, Shown(found));
}

void ExpectColumn(const Subject& file, Args& args) {
  const int column = args.Number("column"), width = args.Number("width");
  if (!args.Take("line")) throw Failure{"expect file PATH column C WIDTH line N \"text\""};
  const int number = args.Number("line");
  const std::string text = args.Text("text");
  args.End();
  if (column < 1 || width < 0) throw Failure{"columns count from 1"};
  const std::string what = " column " + std::to_string(column) + " " + std::to_string(width) + " line " +
                           std::to_string(number) + " " + Shown(text);
  const std::string line = file.Line(number, what);
  const std::string_view found = Coupe(line, column, width);
  if (found != text) Differs(file.expected + what, Shown(found));
}

/// The first place where the file isn't what was expected is what helps; the bytes decide.
void ExpectWhole(const Subject& file, Args& args) {
  const std::vector<std::string> lines = args.Block();
  std::string whole;
  for (const std::string& line : lines) whole += line + "\r\n";
  const std::string& bytes = file.Bytes(" with " + Count(lines.size(), "line"));
  if (bytes == whole) return;
  const auto found = LinesOf(bytes);
  for (std::size_t i = 0; i < std::min(lines.size(), found.size()); ++i)
    if (lines[i] != found[i])
      Differs(file.expected + " line " + std::to_string(i + 1) + " " + Shown(lines[i]), Shown(found[i]));
  if (lines.size() != found.size())
    Differs(file.expected + " with " + Count(lines.size(), "line"), Count(found.size(), "line"));
  Differs(file.expected + " with CR LF at the end of each line", "the same words with other line ends");
}

}  // namespace

void ExpectFile(Run& run, Args& args) {
  const std::string path = args.Word("path");
  const Subject file{"file " + path, FileBytes(run.Path(path))};
  if (args.Take("line")) return ExpectLine(file, args);
  if (args.Take("column")) return ExpectColumn(file, args);
  if (args.Take("is")) return ExpectWhole(file, args);
  if (args.Take("exists")) {
    args.End();
    file.Bytes(" to exist");
    return;
  }
  if (args.Take("absent")) {
    args.End();
    if (file.bytes) Differs(file.expected + " absent", "it with " + Count(file.bytes->size(), "byte"));
    return;
  }
  const bool size = args.Take("size");
  if (!size && !args.Take("lines")) throw Failure{"expect file PATH: exists, absent, size, lines, line, column or is"};
  const int number = args.Number("count");
  args.End();
  const std::string what = (size ? " size " : " lines ") + std::to_string(number);
  const std::string& bytes = file.Bytes(what);
  if (size) return ExpectCount(file, what, number, bytes.size(), "byte");
  ExpectCount(file, what, number, LinesOf(bytes).size(), "line");
}

void ShowFile(Run& run, Args& args) {
  const std::string path = args.Word("path");
  args.End();
  const auto bytes = FileBytes(run.Path(path));
  if (!bytes) return run.Print("file " + path + ": no such file");
  const auto lines = LinesOf(*bytes);
  run.Print("file " + path + ": " + Count(lines.size(), "line"));
  for (const std::string& line : lines) run.Print("| " + Vers_Utf8(line));
}

}  // namespace vorelio::pilot
