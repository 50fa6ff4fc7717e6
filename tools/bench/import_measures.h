#pragma once

#include <vector>

#include "table.h"

namespace vorelio::bench {

/// ADIF imports with their rebuilds and the reload: 10,000 records into a log of as many, 99,999 into an empty one.
void MeasureImports(std::vector<Row>& rows);

}  // namespace vorelio::bench
