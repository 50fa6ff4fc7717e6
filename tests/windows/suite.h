#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <vector>

namespace vorelio::tests {

/// The Qt tests of this program; each file adds its own.
std::vector<std::function<std::unique_ptr<QObject>()>>& Suite();

/// `const InSuite<ListTest> kListTest;` adds a test class.
template <typename T>
struct InSuite {
  InSuite() {
    Suite().push_back([] { return std::make_unique<T>(); });
  }
};

}  // namespace vorelio::tests
