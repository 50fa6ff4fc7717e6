#include "floors.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "core/log_line.h"

namespace vorelio::bench {

namespace {

std::string ReadWhole(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void Write(const std::string& path, int flags, std::string_view data, Flush flush) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | flags, 0666);
  const bool written = file >= 0 && write(file, data.data(), data.size()) == static_cast<ssize_t>(data.size());
  if (!written || (flush == Flush::Yes && fsync(file) != 0)) throw std::runtime_error("cannot write " + path);
  close(file);
}

}  // namespace

void ReadLines(const std::string& path, std::vector<std::string>& lines) {
  lines.clear();
  std::ifstream file(path, std::ios::binary);
  for (std::string line; std::getline(file, line);) lines.push_back(line);
}

int CountCallsign(const std::vector<std::string>& lines, std::string_view callsign) {
  const std::string padded = Complete(callsign, champs::Indicatif_A.largeur);
  constexpr std::size_t kPlace = champs::Indicatif_A.colonne - 1;
  int count = 0;
  for (const std::string& line : lines) count += std::memcmp(line.data() + kPlace, padded.data(), padded.size()) == 0;
  return count;
}

void AppendTo(const std::string& path, std::string_view data, Flush flush) { Write(path, O_APPEND, data, flush); }

void Rewrite(const std::string& path, std::string_view data, Flush flush) { Write(path, 0, data, flush); }

void Replace(const std::string& path, std::string_view data) {
  const std::string beside = path + ".neuf";
  Write(beside, O_EXCL, data, Flush::Yes);
  if (rename(beside.c_str(), path.c_str()) != 0) throw std::runtime_error("cannot name " + path);
  const int folder = open(std::filesystem::path(path).parent_path().c_str(), O_RDONLY | O_DIRECTORY);
  const bool flushed = folder >= 0 && fsync(folder) == 0;
  close(folder);
  if (!flushed) throw std::runtime_error("cannot flush the folder of " + path);
}

void ReadAndRewrite(const std::string& path, Flush flush) { Rewrite(path, ReadWhole(path), flush); }

}  // namespace vorelio::bench
