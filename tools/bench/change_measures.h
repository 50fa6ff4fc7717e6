#pragma once

#include <vector>

#include "table.h"

namespace vorelio::bench {

/// The changes in the middle of a log: a contact put in its place by date, one corrected, one deleted, a card.
void MeasureChanges(std::vector<Row>& rows, int contacts);

}  // namespace vorelio::bench
