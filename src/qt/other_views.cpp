#include "qt/other_views.h"

#include <QMenu>
#include <algorithm>

#include "qt/caption_views.h"
#include "qt/qt_text.h"

namespace vorelio {

namespace {
constexpr int kSecond = 1000;  // Milliseconds.
}  // namespace

// --- Menu entries ---------------------------------------------------------------------------------------------------

MenuView::MenuView(MenuItem& item, QAction& action, Gate& gate)
    : View(item, action, gate), item_(item), action_(action), designed_(action.text()) {
  connect(&action, &QAction::triggered, this, [this] {
    if (!Bound()) return;
    Deliver([this] { item_.UserClick(); });
    // Qt has ticked the entry itself; what is true is the model's word.
    if (Bound()) Changed(Property::Checked);
  });
  for (const auto property : {Property::Caption, Property::Enabled, Property::Visible, Property::Checked})
    Changed(property);
}

void MenuView::Changed(Property property) {
  switch (property) {
    case Property::Caption: action_.setText(CaptionToShow(designed_, item_.Caption())); break;
    case Property::Enabled: action_.setEnabled(item_.Enabled()); break;
    case Property::Visible:
      action_.setVisible(item_.Visible());
      if (auto* window = qobject_cast<QWidget*>(action_.parent())) ShowFilledMenus(*window->window());
      break;
    case Property::Checked:
      if (item_.Checked()) action_.setCheckable(true);
      action_.setChecked(item_.Checked());
      break;
    default: break;
  }
}

void ShowFilledMenus(QWidget& window) {
  // Inner menus come after the outer ones among the children: from the back, each is settled before its outer one.
  const QList<QMenu*> menus = window.findChildren<QMenu*>();
  for (auto menu = menus.rbegin(); menu != menus.rend(); ++menu) {
    const QList<QAction*> entries = (*menu)->actions();
    const bool filled = std::any_of(entries.begin(), entries.end(),
                                    [](const QAction* entry) { return entry->isVisible() && !entry->isSeparator(); });
    (*menu)->menuAction()->setVisible(filled);
  }
}

// --- Gauges ---------------------------------------------------------------------------------------------------------

void GaugeView::ShowDeferred() {
  const int total = std::max(control_.Total(), 1);
  shown_.setRange(0, total);
  shown_.setValue(control_.Total() > 0 ? std::min(control_.Done(), total) : total);
}

// --- Timers ---------------------------------------------------------------------------------------------------------

TimerView::TimerView(Timer& timer, QTimer& clock, Gate& gate) : View(timer, clock, gate), timer_(timer), clock_(clock) {
  clock.setTimerType(Qt::CoarseTimer);
  const auto fire = [this] {
    if (Bound() && gate_.TimersRun()) Deliver([this] { timer_.Fire(); });
  };
  connect(&clock, &QTimer::timeout, this, fire);
  Changed(Property::Enabled);
  // What ticks by the second shows something: not only a second after the start.
  if (timer.Interval() <= kSecond) QTimer::singleShot(0, this, fire);
}

void TimerView::Changed(Property property) {
  if (property != Property::Enabled) return;
  if (timer_.Enabled() && timer_.Interval() > 0)
    clock_.start(timer_.Interval());
  else
    clock_.stop();
}

}  // namespace vorelio
