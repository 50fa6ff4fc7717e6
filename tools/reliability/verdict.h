#pragma once

#include <map>
#include <string>

namespace vorelio::reliability {

/// Files of a folder with their bytes.
using Files = std::map<std::string, std::string>;

Files ReadFolder(const std::string& folder);

/// What became of each file that the deed touches, in words, next to what stood there `before` and what stands there
/// `after` the deed when nothing stops it.
std::map<std::string, std::string> Judge(const Files& before, const Files& after, const Files& found);

}  // namespace vorelio::reliability
