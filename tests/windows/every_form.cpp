#include "windows/every_form.h"

namespace vorelio::tests {

void AddForms() {
  QTest::addColumn<int>("number");
  WindowsBench bench;
  for (int i = 0; i < static_cast<int>(std::size(kForms)); ++i)
    QTest::newRow(kForms[i](bench.programme)->Name().c_str()) << i;
}

}  // namespace vorelio::tests
