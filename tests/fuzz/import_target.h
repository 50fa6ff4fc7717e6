#pragma once

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/log_line.h"
#include "core/text.h"
#include "entry/ddfm.h"
#include "exchange/adif_import.h"
#include "exchange/edi_import.h"
#include "exchange/log_splice.h"
#include "exchange/native_import.h"
#include "forms/programme.h"
#include "fuzz/memory_disk.h"
#include "support/contact.h"
#include "support/outside.h"

namespace vorelio::tests {

/// One importer, fed with whole files: each goes into the same log of three contacts. What must hold is checked here,
/// and a breach aborts, as fuzzers want it.
class ImportTarget {
 public:
  struct Importer {
    const char* name;
    void (*import)(Programme&);
    const char* work_file;
    /// Numbers of the run-time errors that a file may end the import with.
    std::set<int> errors;
    /// Whether all lines that come in are whole log lines.
    bool whole_lines;
    /// A file that goes well, to begin from.
    std::string seed;
  };

  static Importer Adif() {
    return {"ADIF", Sous_Programmes::Importe_ADIF, "Temporaire8.txt", {5, 13, 62}, true, kAdif};
  }
  static Importer Edi() {
    // A mode code such as "1E999" is a number too large.
    return {"EDI", Sous_Programmes::Importe_EDI, "Temporaire7.txt", {5, 6, 13, 62}, true, kEdi};
  }
  static Importer Native() {
    return {"CTF",
            Sous_Programmes::Importe_CTF,
            "Temporaire7.txt",
            {5, 13, 62},
            false,
            Line("12/05/03", "14 Mhz") + "\r\n" + Line("13/05/03", "144 Mhz") + "\n"};
  }

  explicit ImportTarget(Importer importer) : importer_(std::move(importer)) {
    const ScratchFolder templates;
    CopyTemplates(templates.Path());
    for (const char* name : {"FXXXX.log", "FXXXX_Departement.txt", "FXXXX_Locator.txt", "FXXXX_Prefixe.txt"}) {
      templates_[Path(name)] = templates.Read(name);
      templates_[Path(kStation + std::string(name).substr(5))] = templates.Read(name);
    }
    SeedStationSettings(outside_.settings, kFolder, '/', kStation, "JN33BB");
    log_ = Line("12/05/02", "14 Mhz") + "\r\n" + Line("12/05/03", "144 Mhz") + "\r\n" + Line("31/12/49", "14 Mhz") +
           "\r\n";
    Start();
  }

  /// Imports one file; gives the number of the error that has ended it, 0 if none has.
  int Run(std::string_view file) {
    disk_.files = templates_;
    disk_.files[Path("in")] = file;
    disk_.files[Path("F9QZX.log")] = log_;
    outside_.messages.Forget();
    outside_.dialogs.calls.clear();
    windows_.events.clear();
    outside_.messages.fatal_number = 0;
    outside_.dialogs.Choose(Path("in"));
    programme_->Recoit([&] { importer_.import(*programme_); });
    const int error = outside_.messages.fatal_number;
    Check(error);
    if (programme_->Termine_Deja()) Start();
    return error;
  }

 private:
  static constexpr const char* kAdif =
      "Export\r\n<EOH>\r\n"
      "<CALL:5>F6ABC<QSO_DATE:8>20030512<TIME_ON:6>123456<TIME_OFF:4>1240<BAND:3>20M<FREQ:6>14.195<MODE:3>SSB"
      "<RST_SENT:2>59<STX:3>001<RST_RCVD:2>59<SRX:1>2<GRIDSQUARE:6>JN33BB<NAME:5>Ren\xC3\xA9<QTH:4>Nice<STATE:2>06"
      "<COMMENT:2>ok<QSL_SENT:1>Y<QSL_RCVD:1>N<EOR>\r\n"
      "<QSO_DATE:8>20491231<TIME_ON:4>0000<CALL:6>TK5AAA<BAND:2>2M<EOR>\r\n";
  static constexpr const char* kEdi =
      "[REG1TEST;1]\r\nTName=Rallye\r\nPCall=F9QZX\r\nPBand=144\r\n[Remarks]\r\n"
      "[QSORecords;2]\r\n030512;1234;F9XKV;1;59;001;59;002;;JN33BB;12;;;;\r\n"
      "030512;1235;DL1XYZ/P;2;599;002;599;017;;JO40AA;512;;;;\r\n";

  static constexpr const char* kFolder = "/station";
  static constexpr const char* kStation = "F9QZX";

  static std::string Path(const std::string& name) { return std::string(kFolder) + "/" + name; }

  static std::string Line(const char* date, const char* band) {
    return Construit_Ligne(Contact({date, "F6ABC", "12:00", "", "06", "JN33BB", band}));
  }

  void Start() {
    disk_.files = templates_;
    disk_.files[Path("F9QZX.log")] = log_;
    programme_ = std::make_unique<Programme>(outside_.Join(windows_, disk_, kFolder));
    programme_->Recoit([&] { programme_->Fenetre<DDFM>(); });
  }

  void Require(bool held, const char* what) const {
    if (held) return;
    std::fprintf(stderr, "%s import: %s\n", importer_.name, what);
    std::abort();
  }

  void Check(int error) {
    const std::string& log = disk_.files[Path("F9QZX.log")];
    std::vector<std::string_view> old, lines;
    for (Lecteur_Lignes reader(log_); !reader.Fini();) old.push_back(reader.Suivante());
    for (Lecteur_Lignes reader(log); !reader.Fini();) lines.push_back(reader.Suivante());
    const bool marked = std::any_of(lines.begin(), lines.end(), Est_Repere);

    Require(error == 0 || importer_.errors.count(error) > 0, "an error that no file may end in");
    Require(error != 0 || !programme_->Termine_Deja(), "the program has ended without a word");
    Require(marked || !disk_.Exists(Path(importer_.work_file)), "a work file without a marker");
    if (marked) {
      Require(error != 0, "a marker is left of an import that went well");
      Require(log.starts_with(log_) && lines.size() == old.size() + 1, "a log half written");
      return;
    }
    // The old lines are there in their order, and what has come in stands together.
    Require(lines.size() >= old.size(), "lines of the log are lost");
    const std::size_t added = lines.size() - old.size();
    std::size_t place = 0;
    while (place < old.size() && lines[place] == old[place]) ++place;
    Require(std::equal(old.begin() + static_cast<std::ptrdiff_t>(place), old.end(),
                       lines.begin() + static_cast<std::ptrdiff_t>(place + added)),
            "the block isn't in one piece");
    Require(!importer_.whole_lines ||
                std::all_of(lines.begin(), lines.end(),
                            [](std::string_view line) { return line.size() == kLargeur_Ligne && line.ends_with('*'); }),
            "a line that is no log line");
  }

  const Importer importer_;
  std::map<std::string, std::string> templates_;
  std::string log_;
  Outside outside_;
  SilentWindows windows_;
  MemoryDisk disk_;
  std::unique_ptr<Programme> programme_;
};

}  // namespace vorelio::tests
