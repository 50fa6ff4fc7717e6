#pragma once

#include <vector>

#include "table.h"

namespace vorelio::bench {

/// ADIF imports with their rebuilds and the reload: 10,000 records into a log of as many, 99,999 into an empty one. And
/// as many of another program, shown before they come in.
void MeasureImports(std::vector<Row>& rows);

/// One import of another program's log of 99,999 records; prints the most memory that it took beside the file's size.
/// Meant for a process that does nothing else. Gives the exit status.
int ImportForMemory();

}  // namespace vorelio::bench
