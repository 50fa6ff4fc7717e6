#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The least that a machine can do for each of the measured works: the floor under it.
namespace vorelio::bench {

enum class Flush { No, Yes };

/// The lines of a file, one text each, into `lines`.
void ReadLines(const std::string& path, std::vector<std::string>& lines);

/// How many of the texts have `callsign` in the columns of the callsign.
int CountCallsign(const std::vector<std::string>& lines, std::string_view callsign);

void AppendTo(const std::string& path, std::string_view data, Flush flush);

/// Writes over the file's contents.
void Rewrite(const std::string& path, std::string_view data, Flush flush);

/// Writes a file beside, flushes it, gives it the name and flushes the folder: how a file is replaced whole.
void Replace(const std::string& path, std::string_view data);

/// Reads the file and writes the same over it.
void ReadAndRewrite(const std::string& path, Flush flush);

}  // namespace vorelio::bench
