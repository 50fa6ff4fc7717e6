#pragma once

#include "core/rows.h"
#include "support/logging_disk.h"

namespace vorelio::tests {

/// The rows of a list, to compare them with lines.
inline Lines Texts(const Rows& rows) { return {rows.begin(), rows.end()}; }

}  // namespace vorelio::tests
