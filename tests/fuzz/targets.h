#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "fuzz/cluster_page_target.h"
#include "fuzz/folder_target.h"
#include "fuzz/import_target.h"
#include "fuzz/journal_target.h"

namespace vorelio::tests {

/// What is fed with whole files, and a file that goes well. A run gives the number of the error that has ended it, 0 if
/// none has, and aborts where what must hold doesn't.
struct FuzzTarget {
  std::function<int(std::string_view)> run;
  std::string seed;
};

/// The files of the folder that are fed, by the names of their targets.
inline const std::map<std::string, std::string, std::less<>>& FolderFiles() {
  static const std::map<std::string, std::string, std::less<>> files = {{"log", "F9QZX.log"},
                                                                        {"departments", "F9QZX_Departement.txt"},
                                                                        {"squares", "F9QZX_Locator.txt"},
                                                                        {"prefixes", "F9QZX_Prefixe.txt"},
                                                                        {"directory", "Nomenclature.txt"},
                                                                        {"template", "FXXXX_Locator.txt"},
                                                                        {"activities", "F9QZX_Activite.bak"},
                                                                        {"backup", "F9QZX.bak"},
                                                                        {"settings", "Vorelio.ini"}};
  return files;
}

/// An importer ("adif", "edi", "native"), a reader of whole logs ("adif3", "edi_journal"), the reader of the cluster
/// page
/// ("cluster"), or a file of the folder, one of `FolderFiles`; nothing to run for another name.
inline FuzzTarget TargetOf(std::string_view name) {
  const auto importing = [](const ImportTarget::Importer& importer) {
    const auto target = std::make_shared<ImportTarget>(importer);
    return FuzzTarget{[target](std::string_view file) { return target->Run(file); }, importer.seed};
  };
  if (name == "adif") return importing(ImportTarget::Adif());
  if (name == "edi") return importing(ImportTarget::Edi());
  if (name == "native") return importing(ImportTarget::Native());
  if (name == "cluster") return {RunClusterPage, ClusterPageSeed()};
  if (const auto file = FolderFiles().find(name); file != FolderFiles().end()) {
    const auto target = std::make_shared<FolderTarget>(file->second);
    return {[target](std::string_view bytes) { return target->Run(bytes); }, FolderTarget::Seeds()[file->second]};
  }
  if (name == "adif3") return {RunJournal, Adif3Seed()};
  if (name == "edi_journal") return {RunJournal, EdiJournalSeed()};
  return {};
}

}  // namespace vorelio::tests
