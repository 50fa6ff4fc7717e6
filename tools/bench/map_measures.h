#pragma once

#include <vector>

#include "table.h"

namespace vorelio::bench {

/// The maps on a full log, each as its window opens.
void MeasureMaps(std::vector<Row>& rows);

}  // namespace vorelio::bench
