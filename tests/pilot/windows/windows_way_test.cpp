#include "pilot/windows/windows_way.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <sstream>

#include "pilot/bench.h"
#include "pilot/pilot.h"
#include "qt/view.h"

namespace vorelio::pilot {
namespace {

/// What the pilot prints about a scenario; `spoil` changes the window behind the program's back.
std::string Says(const std::string& scenario, const std::function<void(QWidget&)>& spoil = {}) {
  std::ostringstream out;
  const Starter start = [&](Programme& programme) {
    StartBench(programme);
    for (QWidget* window : QApplication::topLevelWidgets())
      if (spoil && window->objectName() == QLatin1String("Banc")) spoil(*window);
  };
  RunText("t.scn", scenario, MakeWindowsWay, start, out);
  return out.str();
}

template <typename W>
W& Of(QWidget& window, const char* name) {
  return *window.findChild<W*>(QLatin1String(name));
}

TEST(WindowsWay, WhatHoldsOnTheFormsHoldsOnTheScreen) {
  for (const char* scenario : kScenariosThatHold) EXPECT_EQ(Says(scenario), "") << scenario;
}

TEST(WindowsWay, AScreenThatShowsOtherThingsFails) {
  const struct {
    std::function<void(QWidget&)> spoil;
    const char* expectation;
    const char* says;
  } cases[] = {
      {[](QWidget& w) { Of<QLineEdit>(w, "Lu").setText(QStringLiteral("autre")); }, "Lu text \"\"",
       "Lu text \"\", found \"\" in the program but \"autre\" on the screen"},
      {[](QWidget& w) { Of<QLabel>(w, "Vu").setText(QStringLiteral("autre")); }, "Vu caption rien",
       "Vu caption \"rien\", found \"rien\" in the program but \"autre\" on the screen"},
      {[](QWidget& w) { Of<QLineEdit>(w, "Appel").setEnabled(false); }, "Appel enabled yes",
       "Appel enabled yes, found yes in the program but no on the screen"},
      {[](QWidget& w) { Of<QLineEdit>(w, "Appel").hide(); }, "Appel visible yes",
       "Appel visible yes, found yes in the program but no on the screen"},
      {[](QWidget& w) { Of<QAbstractButton>(w, "Non").setChecked(true); }, "Oui checked yes",
       "Oui checked yes, found yes in the program but no on the screen"},
      {[](QWidget& w) { PaintField(Of<QLineEdit>(w, "Lu"), kSaisie); }, "Lu colour window",
       "Lu colour window, found window in the program but C0FFC0 on the screen"},
      {[](QWidget& w) { w.setWindowTitle(QStringLiteral("autre")); }, "Banc title \"Banc d'été\"",
       "Banc title \"Banc d'été\", found \"Banc d'été\" in the program but \"autre\" on the screen"},
  };
  for (const auto& each : cases) {
    const std::string scenario = std::string("start\nexpect ") + each.expectation;
    EXPECT_EQ(Says(scenario), "") << scenario;
    EXPECT_EQ(Says(scenario, each.spoil), std::string("t.scn:2: expected ") + each.says + "\n");
  }
}

TEST(WindowsWay, AControlOutOfReachOnTheScreenAloneFails) {
  EXPECT_EQ(Says("start\ntype Appel x", [](QWidget& w) { Of<QLineEdit>(w, "Appel").setEnabled(false); }),
            "t.scn:2: Appel can be reached in the program but is disabled on the screen\n");
  EXPECT_EQ(Says("start\nclick Demander", [](QWidget& w) { Of<QWidget>(w, "Demander").hide(); }),
            "t.scn:2: Demander can be reached in the program but is hidden on the screen\n");
  EXPECT_EQ(Says("start\nclick Ouvrir\nclick Demander\nexpect question x"),
            "t.scn:4: expected question \"x\", found none\n"
            "t.scn:3: note: Demander is locked behind the window Essai, nothing was clicked\n");
}

}  // namespace
}  // namespace vorelio::pilot

int main(int argc, char** argv) {
  Q_INIT_RESOURCE(bench);
  testing::InitGoogleTest(&argc, argv);
  const vorelio::pilot::Desktop desktop;
  return RUN_ALL_TESTS();
}
