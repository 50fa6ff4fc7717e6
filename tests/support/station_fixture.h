#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/programme.h"
#include "platform/posix_disk.h"
#include "stations/station_files.h"
#include "support/logging_disk.h"
#include "support/outside.h"

namespace vorelio::tests {

using namespace Sous_Programmes;

/// A scratch program directory as the program is delivered, doubles of every service, and a run over them. A test that
/// wants a station calls `ReadyStation`; one that wants the first run doesn't.
class StationFixture : public ::testing::Test, protected Outside {
 protected:
  StationFixture() { CopyTemplates(folder.Path()); }

  /// A station as the first run leaves it: files, settings, and the context of the run.
  void ReadyStation(const std::string& call = "F6ABC", const std::string& locator = "JN33BB") {
    Cree_Fichiers_Station(*programme, call);
    disk.Forget();
    SeedStationSettings(settings, folder.Path(), '/', call, locator);
    programme->contexte.Station_Indicatif = call;
    programme->contexte.Station_Locator = locator;
  }

  /// Ends the run and begins another on the same directory and settings.
  void Restart() { programme = std::make_unique<Programme>(Join(windows, disk, folder.Path())); }

  /// The bytes of a file of the program directory; the empty text where there is none.
  std::string Read(std::string_view name) const { return folder.Read(name); }
  void Write(std::string_view name, std::string_view bytes) const { folder.Write(name, bytes); }
  /// Lines as they stand in a file, each ended by CR LF.
  static std::string Joined(const Lines& lines) {
    std::string bytes;
    for (const std::string& line : lines) bytes.append(line).append("\r\n");
    return bytes;
  }
  void WriteLines(std::string_view name, const Lines& lines) const { Write(name, Joined(lines)); }
  /// Line `number` from 1, without its CR LF; the empty text past the end.
  std::string Line(std::string_view name, int number) const {
    const std::string bytes = Read(name);
    std::size_t start = 0;
    for (; number > 1 && start != std::string::npos; --number) {
      start = bytes.find("\r\n", start);
      if (start != std::string::npos) start += 2;
    }
    return start == std::string::npos ? std::string{} : bytes.substr(start, bytes.find("\r\n", start) - start);
  }

  /// Runs something as an event from outside: errors that nobody traps end the program.
  template <typename Action>
  void Event(Action action) {
    programme->Recoit(action);
  }

  ScratchFolder folder;
  SilentWindows windows;
  PosixDisk posix_disk;
  LoggingDisk disk{posix_disk, folder.Path()};

  // Last: a run uses the services to its end.
  std::unique_ptr<Programme> programme = std::make_unique<Programme>(Join(windows, disk, folder.Path()));
};

}  // namespace vorelio::tests
