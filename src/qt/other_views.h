#pragma once

#include <QAction>
#include <QProgressBar>
#include <QTimer>

#include "qt/view.h"

namespace vorelio {

/// A menu entry. A menu all of whose entries are hidden is hidden with them.
class MenuView final : public View {
 public:
  MenuView(MenuItem& item, QAction& action, Gate& gate);

  void Changed(Property property) override;

 private:
  MenuItem& item_;
  QAction& action_;
  QString designed_;
};

/// A bar that shows how far a running procedure has come; it follows at the pace of the screen.
class GaugeView final : public ViewOf<Gauge, QProgressBar> {
 public:
  GaugeView(Gauge& gauge, QProgressBar& bar, Gate& gate) : ViewOf(gauge, bar, gate) { ShowDeferred(); }

 protected:
  void Show(Property property) override {
    if (property == Property::Progress) Defer();
  }
  void ShowDeferred() override;
  void ShowColour() override {}
};

/// Runs a timer of the logic while it is enabled and its form is loaded.
class TimerView final : public View {
 public:
  TimerView(Timer& timer, QTimer& clock, Gate& gate);

  void Changed(Property property) override;

 protected:
  void Released() override { clock_.stop(); }

 private:
  Timer& timer_;
  QTimer& clock_;
};

/// Hides the menus of a window whose entries are all hidden, and shows the others.
void ShowFilledMenus(QWidget& window);

}  // namespace vorelio
