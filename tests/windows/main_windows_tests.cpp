#include <QApplication>
#include <QStandardPaths>
#include <QTest>

#include "windows/suite.h"

namespace vorelio::tests {

std::vector<std::function<std::unique_ptr<QObject>()>>& Suite() {
  static std::vector<std::function<std::unique_ptr<QObject>()>> tests;
  return tests;
}

}  // namespace vorelio::tests

/// Runs every test class, with the arguments of Qt Test; the status is the number of failures.
int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QStandardPaths::setTestModeEnabled(true);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  int failures = 0;
  for (const auto& make : vorelio::tests::Suite()) failures += QTest::qExec(make().get(), argc, argv);
  return failures;
}
