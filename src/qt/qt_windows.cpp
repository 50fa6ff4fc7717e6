#include "qt/qt_windows.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QEventLoop>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStatusBar>
#include <QToolTip>
#include <QWindow>
#include <algorithm>
#include <exception>

#include "core/text.h"
#include "forms/programme.h"
#include "qt/qt_text.h"
#include "qt/window_fit.h"

namespace vorelio {

namespace {

using std::chrono::milliseconds;

/// Events are let into a running procedure this often: often enough for the eye, and cheap enough for every line.
constexpr milliseconds kPump{15};
/// A window that is hidden or shown in a running procedure for less long than this doesn't flicker for it.
constexpr milliseconds kPatience{150};
/// A list that a running procedure fills is shown anew this often.
constexpr milliseconds kRefill{250};
constexpr int kNotice_ms = 8000;

/// A text that stands there already is selected, as Tab would: what is typed takes its place.
void GiveFocus(QWidget& widget) {
  widget.setFocus(Qt::OtherFocusReason);
  if (auto* field = qobject_cast<QLineEdit*>(&widget)) field->selectAll();
}

}  // namespace

QtWindows::QtWindows() {
  soon_.setSingleShot(true);
  soon_.setInterval(0);
  connect(&soon_, &QTimer::timeout, this, [this] {
    // In a running procedure its own pump decides what is due.
    if (!pumping_) ShowPending();
  });
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* before, QWidget* now) {
    if (before && qobject_cast<QMenuBar*>(now)) before_menu_ = before;
  });
}

QtWindows::~QtWindows() {
  for (const auto& window : windows_) {
    window->binding.reset();
    delete window->widget;
  }
}

// --- Forms ----------------------------------------------------------------------------------------------------------

QtWindows::Window* QtWindows::Find(const Form& form) const {
  const auto place =
      std::find_if(windows_.begin(), windows_.end(), [&](const auto& window) { return window->form == &form; });
  return place == windows_.end() ? nullptr : place->get();
}

void QtWindows::Created(Form& form) {
  QString problem;
  QWidget* widget = LoadWindow(ToQt(form.Name()), problem);
  if (!widget) {
    // An empty window can be seen and closed; without one the program would wait for ever.
    qCritical("%s: %s", form.Name().c_str(), qUtf8Printable(problem));
    widget = new QWidget;
  }
  widget->setAttribute(Qt::WA_QuitOnClose, false);
  widget->installEventFilter(this);
  windows_.push_back(std::make_unique<Window>());
  Window& window = *windows_.back();
  window.form = &form;
  window.widget = widget;
  window.binding = std::make_unique<Binding>(form, *widget, static_cast<Gate&>(*this));
  window.title = form.Title();
  widget->setWindowTitle(ToQt(form.Title()));
  for (const std::string& line : window.binding->Problems())
    qWarning("%s.%s", form.Name().c_str(), qUtf8Printable(ToQt(line)));
  window.placed = Furnish && Furnish(form, *widget);
  if (form.Main()) return;
  auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), widget);
  connect(escape, &QShortcut::activated, widget, &QWidget::close);
}

void QtWindows::Destroyed(Form& form) {
  const auto place =
      std::find_if(windows_.begin(), windows_.end(), [&](const auto& window) { return window->form == &form; });
  if (place == windows_.end()) return;
  const std::unique_ptr<Window> window = std::move(*place);
  windows_.erase(place);
  window->binding.reset();
  window->widget->removeEventFilter(this);
  window->widget->hide();
  // One of its widgets may be the sender of the event that is running.
  window->widget->deleteLater();
}

void QtWindows::Changed(Form& form) {
  Window* window = Find(form);
  if (!window) return;
  if (window->title != form.Title()) {
    window->title = form.Title();
    window->widget->setWindowTitle(ToQt(form.Title()));
    return;
  }
  window->raise = form.Visible();
  WindowsPending();
}

void QtWindows::WindowsPending() {
  if (!pending_since_) pending_since_ = Clock::now();
  soon_.start();
}

void QtWindows::Centre(Form& form) {
  Window* window = Find(form);
  if (!window) return;
  window->centre = true;
  if (window->widget->isVisible() && !form.Main()) PlaceInCentre(*window);
}

void QtWindows::PlaceInCentre(Window& window) {
  const QScreen* screen = window.widget->screen();
  for (const auto& other : windows_)
    if (other->form->Main() && other->widget->isVisible()) screen = other->widget->screen();
  const QRect room = screen->availableGeometry();
  const QSize spare = (room.size() - WithFrame(*window.widget)) / 2;
  window.widget->move(room.topLeft() + QPoint(std::max(0, spare.width()), std::max(0, spare.height())));
}

// --- What is put off ------------------------------------------------------------------------------------------------

void QtWindows::Later(View& view) {
  deferred_.emplace_back(&view);
  if (!soon_.isActive()) soon_.start();
}

void QtWindows::RefreshViews() {
  last_refresh_ = Clock::now();
  const std::vector<QPointer<View>> views = std::exchange(deferred_, {});
  for (const QPointer<View>& view : views)
    if (view) view->Refresh();
}

void QtWindows::ShowPending() {
  RefreshViews();
  pending_since_.reset();
  // Showing a window can let events in: the list is looked at by place.
  for (std::size_t i = 0; i < windows_.size(); ++i) {
    Window& window = *windows_[i];
    if (window.form->Visible() && (window.raise || !window.widget->isVisible())) ShowWindow(window);
  }
  for (std::size_t i = 0; i < windows_.size(); ++i) {
    QWidget* widget = windows_[i]->widget;
    if (!windows_[i]->form->Visible() && widget->isVisible()) widget->hide();
  }
}

void QtWindows::ShowWindow(Window& window) {
  QWidget* widget = window.widget;
  window.raise = false;
  const Form* locking = window.form->programme().Fenetre_Modale();
  const bool above = window.form->AboveModal();
  const bool locked = locking && locking != window.form && !above;
  if (widget->isVisible()) {
    if (!locked) {
      widget->raise();
      widget->activateWindow();
    }
    return;
  }
  if (!window.placed) {
    if (!widget->testAttribute(Qt::WA_Resized)) widget->adjustSize();
    FitOnScreen(*widget);
    if (window.centre) PlaceInCentre(window);
    window.placed = true;
  }
  // To the window system only a modal window stands above a modal one.
  const bool modal = window.form->Modal() || (above && locking);
  widget->setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
  widget->show();
  if (window.form->Modal() && widget->windowHandle())
    for (const auto& other : windows_)
      if (other->form->Main() && other->widget->isVisible() && other->widget->windowHandle())
        widget->windowHandle()->setTransientParent(other->widget->windowHandle());
  if (locked) return;
  widget->raise();
  widget->activateWindow();
  FocusFirst(window);
}

void QtWindows::ComeToFront() {
  const auto raise = [](QWidget& widget) {
    widget.setWindowState(widget.windowState() & ~Qt::WindowMinimized);
    widget.raise();
    widget.activateWindow();
  };
  for (const auto& window : windows_)
    if (window->form->Main() && window->widget->isVisible()) raise(*window->widget);
  if (QWidget* waiting = QApplication::activeModalWidget()) raise(*waiting);
}

void QtWindows::FocusFirst(Window& window) {
  if (window.widget->focusWidget()) return;
  // The window's property "premier" names the widget to begin with, where that isn't the first of the tab chain.
  const QString name = window.widget->property("premier").toString();
  if (auto* first = name.isEmpty() ? nullptr : window.widget->findChild<QWidget*>(name); first && first->isEnabled())
    return GiveFocus(*first);
  for (QWidget* next = window.widget->nextInFocusChain(); next && next != window.widget;
       next = next->nextInFocusChain()) {
    if (next->isEnabled() && next->isVisibleTo(window.widget) && (next->focusPolicy() & Qt::TabFocus))
      return GiveFocus(*next);
  }
}

// --- Events ---------------------------------------------------------------------------------------------------------

void QtWindows::Deliver(Programme& programme, const std::function<void()>& action) {
  ++depth_;
  ++delivered_;
  try {
    programme.Recoit(action);
  } catch (const std::exception& error) {
    // A fault of the program itself: it must not cross the event loop, and it must be seen.
    programme.plateforme.messages.Fatal(51, "Erreur d'exécution '51' : Erreur interne\r\n"_t + error.what());
    programme.Termine();
  }
  if (--depth_ > 0) return;
  if (!deferred_.empty() || pending_since_) soon_.start();
  LeaveMenuBar();
  if (focus_lost_) RestoreFocus(programme);
  if (programme.Termine_Deja()) QCoreApplication::exit();
}

/// The bar gives the keyboard back by itself, but not where an entry has opened a window: then the letters that follow
/// that window would open menus.
void QtWindows::LeaveMenuBar() {
  if (!before_menu_ || QApplication::activePopupWidget()) return;
  const auto* bar = qobject_cast<QMenuBar*>(before_menu_->window()->focusWidget());
  if (bar && !bar->activeAction()) before_menu_->setFocus(Qt::MenuBarFocusReason);
}

void QtWindows::RestoreFocus(const Programme& programme) {
  focus_lost_ = false;
  Control* control = programme.Focus();
  if (control && control->Reachable()) Focus(*control);
}

void QtWindows::Focus(Control& control) {
  View* view = ViewOf(control);
  QWidget* widget = view ? qobject_cast<QWidget*>(&view->Shown()) : nullptr;
  if (!widget) return;
  QWidget* before = widget->window()->focusWidget();
  if (before != widget) {
    widget->setFocus(Qt::OtherFocusReason);
    // In a window that isn't in front Qt doesn't tell a field that it has lost the focus.
    if (auto* combo = qobject_cast<QComboBox*>(before)) before = combo->lineEdit();
    if (auto* field = qobject_cast<QLineEdit*>(before)) field->deselect();
  }
  view->Focused();
  // With large letters on a small screen the window's contents are a scrolled page.
  for (QWidget* above = widget->parentWidget(); above; above = above->parentWidget())
    if (auto* page = qobject_cast<QScrollArea*>(above)) page->ensureWidgetVisible(widget, 20, 40);
}

void QtWindows::ServeEvents() {
  if (Clock::now() < next_pump_) return;
  Pump();
  next_pump_ = Clock::now() + kPump;
}

void QtWindows::Pump() {
  const QScopedValueRollback<bool> pumping(pumping_, true);
  const auto now = Clock::now();
  if (pending_since_ && now - *pending_since_ > kPatience) ShowPending();
  if (!deferred_.empty() && now - last_refresh_ > kRefill) RefreshViews();
  // Keys that are typed while the entry form is only just being hidden wait for it to come back.
  QCoreApplication::processEvents(pending_since_ ? QEventLoop::ExcludeUserInputEvents : QEventLoop::AllEvents);
}

void QtWindows::Wait(const std::function<bool()>& done) {
  if (!Waiter) return WaitUntil(done);
  const QScopedValueRollback<bool> waiting(pumping_, false);
  ShowPending();
  Waiter(done);
}

void QtWindows::WaitUntil(const std::function<bool()>& done) {
  const QScopedValueRollback<bool> waiting(pumping_, false);
  ShowPending();
  QEventLoop loop;
  while (!done()) loop.processEvents(QEventLoop::WaitForMoreEvents);
}

void QtWindows::RunModal(Form& form) {
  const Programme& programme = form.programme();
  Wait([&] { return !form.Visible() || programme.Termine_Deja(); });
}

void QtWindows::WaitForEvent() {
  const unsigned before = delivered_;
  Wait([this, before] { return delivered_ != before; });
}

bool QtWindows::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) FollowContents(*static_cast<QWidget*>(watched));
  if (event->type() != QEvent::Close) return false;
  // Whether the window goes is the logic's to say.
  event->ignore();
  for (const auto& window : windows_) {
    if (window->widget != watched) continue;
    Form& form = *window->form;
    Deliver(form.programme(), [&form] { form.UserClose(); });
    break;
  }
  return true;
}

void QtWindows::Notice(QWidget& place, const QString& text) {
  QApplication::beep();
  if (auto* main = qobject_cast<QMainWindow*>(place.window()))
    main->statusBar()->showMessage(text, kNotice_ms);
  else
    QToolTip::showText(place.mapToGlobal(QPoint(0, place.height())), text, &place, {}, kNotice_ms);
}

// --- Looking things up ----------------------------------------------------------------------------------------------

View* QtWindows::ViewOf(const Control& control) const {
  const Window* window = Find(control.Parent());
  return window ? window->binding->Of(control) : nullptr;
}

QWidget* QtWindows::WindowOf(const Form& form) const {
  const Window* window = Find(form);
  return window ? window->widget : nullptr;
}

QWidget* QtWindows::WidgetOf(const Control& control) {
  ShowPending();
  const Window* window = Find(control.Parent());
  return window ? window->binding->WidgetOf(control) : nullptr;
}

QAction* QtWindows::ActionOf(const MenuItem& item) const {
  const Window* window = Find(item.Parent());
  return window ? window->binding->ActionOf(item) : nullptr;
}

const std::vector<std::string>& QtWindows::Problems(const Form& form) const {
  static const std::vector<std::string> none;
  const Window* window = Find(form);
  return window ? window->binding->Problems() : none;
}

}  // namespace vorelio
