#pragma once

#include "pilot/commands.h"

/// What a scenario expects of a file of the program directory; the words after "expect file" and "show file".
namespace vorelio::pilot {

void ExpectFile(Run& run, Args& args);
void ShowFile(Run& run, Args& args);

}  // namespace vorelio::pilot
