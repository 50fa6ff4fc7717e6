#pragma once

#include <vector>

#include "station_run.h"
#include "table.h"

namespace vorelio::bench {

/// The three rebuilds on logs of 1,000, 10,000 and 99,999 contacts; on the first two beside a rewriting of the whole
/// tally for every line, in memory.
void MeasureRebuilds(std::vector<Row>& rows);

/// The three rebuilds, each to its end.
void RebuildAll(StationRun& run);

/// A batch of 1,000 cards on a full log.
void MeasureCards(std::vector<Row>& rows);

}  // namespace vorelio::bench
