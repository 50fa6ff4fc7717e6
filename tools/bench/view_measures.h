#pragma once

#include <vector>

#include "table.h"

namespace vorelio::bench {

/// The statistics and the search on a full log.
void MeasureViews(std::vector<Row>& rows);

}  // namespace vorelio::bench
