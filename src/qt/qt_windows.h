#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "platform/platform.h"
#include "qt/binder.h"
#include "qt/view.h"

class QAction;
class QWidget;

namespace vorelio {

class MenuItem;

/// The screen on Qt: a window for each form, made from its .ui file.
///
/// Whether a window is to be seen is applied when the events are next served, not at once: a window that is hidden and
/// shown again within one procedure stays in sight. In a procedure that lets events in, it is applied after a moment.
class QtWindows : public QObject, public WindowService, private Gate {
 public:
  QtWindows();
  ~QtWindows() override;

  // --- The logic's side ---

  void Created(Form& form) override;
  void Destroyed(Form& form) override;
  void Changed(Form& form) override;
  void Centre(Form& form) override;
  void RunModal(Form& form) override;
  void Focus(Control& control) override;
  void ServeEvents() override;
  void WaitForEvent() override;

  // --- The screen's side ---

  /// Gives the logic an event of outside. Nothing is thrown from it; when the program has ended and nothing of it runs
  /// any more, the application leaves its event loop.
  void Deliver(Programme& programme, const std::function<void()>& action) override;

  /// Puts what is still waiting on the screen: windows to be shown or hidden, lists to be filled.
  void ShowPending();

  /// Brings the program to the front, as far as the desktop lets it: the main window, and over it what waits for an
  /// answer.
  void ComeToFront();

  /// The window of a form, null if it is none of these windows.
  QWidget* WindowOf(const Form& form) const;
  /// The widget of a control, up to date; null when there is none.
  QWidget* WidgetOf(const Control& control);
  QAction* ActionOf(const MenuItem& item) const;

  /// What of form and window doesn't fit; see `Binding`.
  const std::vector<std::string>& Problems(const Form& form) const;

  /// When set, waits in place of the event loop, until `done()` is true.
  std::function<void(const std::function<bool()>& done)> Waiter;

  /// Serves events until `done()`, which is asked after each of them.
  void WaitUntil(const std::function<bool()>& done);

  /// Adds to a new window what is no matter of the logic; true if it has given it a place on the screen.
  std::function<bool(const Form& form, QWidget& window)> Furnish;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  using Clock = std::chrono::steady_clock;

  struct Window {
    Form* form;
    QWidget* widget;
    std::unique_ptr<Binding> binding;
    std::string title;
    bool centre = false;
    bool raise = false;
    bool placed = false;
  };

  void Later(View& view) override;
  void Notice(QWidget& place, const QString& text) override;
  void FocusLost() override { focus_lost_ = true; }
  bool TimersRun() const override { return !Waiter; }

  Window* Find(const Form& form) const;
  View* ViewOf(const Control& control) const;
  void Wait(const std::function<bool()>& done);
  void Pump();
  void RefreshViews();
  void ShowWindow(Window& window);
  void PlaceInCentre(Window& window);
  void FocusFirst(Window& window);
  void LeaveMenuBar();
  void RestoreFocus(const Programme& programme);
  void WindowsPending();

  std::vector<std::unique_ptr<Window>> windows_;
  std::vector<QPointer<View>> deferred_;
  QTimer soon_;
  std::optional<Clock::time_point> pending_since_;
  Clock::time_point next_pump_{};
  Clock::time_point last_refresh_{};
  int depth_ = 0;
  unsigned delivered_ = 0;
  bool pumping_ = false;
  bool focus_lost_ = false;
  QPointer<QWidget> before_menu_;  ///< What had the keyboard before the menu bar took it.
};

}  // namespace vorelio
