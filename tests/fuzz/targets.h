#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "fuzz/cluster_page_target.h"
#include "fuzz/import_target.h"
#include "fuzz/journal_target.h"

namespace vorelio::tests {

/// What is fed with whole files, and a file that goes well. A run gives the number of the error that has ended it, 0 if
/// none has, and aborts where what must hold doesn't.
struct FuzzTarget {
  std::function<int(std::string_view)> run;
  std::string seed;
};

/// An importer ("adif", "edi", "native"), a reader of whole logs ("adif3", "edi_journal"), or the reader of the cluster
/// page ("cluster"); nothing to run for another name.
inline FuzzTarget TargetOf(std::string_view name) {
  const auto importing = [](const ImportTarget::Importer& importer) {
    const auto target = std::make_shared<ImportTarget>(importer);
    return FuzzTarget{[target](std::string_view file) { return target->Run(file); }, importer.seed};
  };
  if (name == "adif") return importing(ImportTarget::Adif());
  if (name == "edi") return importing(ImportTarget::Edi());
  if (name == "native") return importing(ImportTarget::Native());
  if (name == "cluster") return {RunClusterPage, ClusterPageSeed()};
  if (name == "adif3") return {RunJournal, Adif3Seed()};
  if (name == "edi_journal") return {RunJournal, EdiJournalSeed()};
  return {};
}

}  // namespace vorelio::tests
