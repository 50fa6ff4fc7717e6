#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>

#include "core/errors.h"
#include "core/text.h"
#include "entry/ddfm.h"
#include "printing/labels_window.h"
#include "qt/qt_clipboard.h"
#include "qt/qt_file_dialogs.h"
#include "qt/qt_messages.h"
#include "qt/qt_text.h"
#include "qt/rows_view.h"
#include "qt/window_extras.h"
#include "qt/window_fit.h"
#include "stations/loading_window.h"
#include "stations/log_file.h"
#include "stations/station_form.h"
#include "tallies/add_prefix_window.h"
#include "windows/windows_bench.h"

namespace vorelio::tests {
namespace {

/// Notes what each box shows, and answers as it is told.
class SeenMessages : public QtMessages {
 public:
  using QtMessages::QtMessages;

  QStringList words;
  QString text, title;
  int answer = QMessageBox::Ok;
  QMessageBox::StandardButton first = QMessageBox::NoButton;

 protected:
  int Execute(QMessageBox& box) override {
    text = box.text();
    title = box.windowTitle();
    first = box.standardButton(box.defaultButton());
    words.clear();
    for (const QAbstractButton* button : box.buttons()) words << WithoutMnemonic(button->text());
    words.sort();
    return answer;
  }
};

class SeenDialogs : public QtFileDialogs {
 public:
  using QtFileDialogs::QtFileDialogs;
  QString folder, filter, answer;
  QStringList proposed;

 protected:
  QString Execute(QFileDialog& dialog) override {
    folder = dialog.directory().path();
    filter = dialog.nameFilters().join(u'+');
    proposed = dialog.selectedFiles();
    return answer;
  }
};

/// Counts how often a window is hidden.
struct Hides : QObject {
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Hide) ++count;
    return false;
  }

  int count = 0;
};

struct MainBench : WindowsBench {
  DDFM& main = Open<DDFM>();
  QWidget* window = windows.WindowOf(main);
};

/// The program with all that it adds to its windows; what is chosen in a test doesn't outlast it.
struct LookBench : ProgramLook, WindowsBench {
  LookBench() {
    windows.Furnish = Furnisher();
    Open<DDFM>();
  }
  ~LookBench() {
    look.SetZoom(100);
    QApplication::setFont(before);
    QApplication::setPalette(QPalette());
  }

  const QFont before = QApplication::font();
};

using QtWindowsTest = On<MainBench>;
using LookTest = On<LookBench>;

// Hiding and showing within one procedure leaves the window alone.
TEST_F(QtWindowsTest, AQuickLoadDoesNotFlicker) {
  Hides hides;
  window->installEventFilter(&hides);
  windows.Deliver(programme, [&] { Sous_Programmes::Charge_Log(programme, "F9QZX"); });
  QCoreApplication::processEvents();
  EXPECT_EQ(hides.count, 0);
  EXPECT_TRUE(window->isVisible());
}

TEST_F(QtWindowsTest, ALongLoadShowsTheSmallWindow) {
  auto& small = programme.Fenetre<Chargement>();
  windows.Deliver(programme, [&] {
    main.Hide();
    small.Show();
    QTest::qSleep(30);
    windows.ServeEvents();
    EXPECT_TRUE(window->isVisible());
    QTest::qSleep(180);
    windows.ServeEvents();
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(windows.WindowOf(small)->isVisible());
    small.Hide();
    main.Show();
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return window->isVisible(); }));
  EXPECT_FALSE(windows.WindowOf(small)->isVisible());
}

TEST_F(QtWindowsTest, ServingEventsCostsNextToNothing) {
  QElapsedTimer time;
  time.start();
  for (int i = 0; i < 100'000; ++i) windows.ServeEvents();
  EXPECT_TRUE(time.elapsed() < 500) << qPrintable(QString::number(time.elapsed()));
}

TEST_F(QtWindowsTest, ServingEventsLetsThemIn) {
  bool came = false;
  QTimer::singleShot(0, &windows, [&] { came = true; });
  windows.Deliver(programme, [&] {
    QElapsedTimer time;
    time.start();
    while (!came && time.elapsed() < 2000) windows.ServeEvents();
  });
  EXPECT_TRUE(came);
  EXPECT_TRUE(main.Visible());
}

TEST_F(QtWindowsTest, AModalWindowLocksTheOthersAndBlocksItsCaller) {
  bool back = false, locked = false;
  QTimer::singleShot(0, &windows, [&] {
    auto& station = programme.Fenetre<Station>();
    EXPECT_FALSE(back);
    locked = windows.WindowOf(station)->isModal() && !main.Indicatif_A.Reachable();
    // As the user closes it.
    windows.WindowOf(station)->close();
  });
  windows.Deliver(programme, [&] {
    programme.Fenetre<Station>().ShowModal();
    back = true;
  });
  EXPECT_TRUE(back && locked);
  EXPECT_TRUE(main.Indicatif_A.Reachable());
  EXPECT_FALSE(programme.Ouverte<Station>());
}

TEST_F(QtWindowsTest, EscapeClosesASecondaryWindow) {
  auto& prefix = Open<Ajout_Prefixe>();
  QWidget* secondary = windows.WindowOf(prefix);
  EXPECT_TRUE(QTest::qWaitForWindowActive(secondary));
  EXPECT_EQ(secondary->focusWidget(), windows.WidgetOf(prefix.N_Prefixe));
  QTest::keyClick(secondary, Qt::Key_Escape);
  EXPECT_FALSE(programme.Ouverte<Ajout_Prefixe>());
  window->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(window));
  QTest::keyClick(window, Qt::Key_Escape);
  EXPECT_TRUE(programme.Ouverte<DDFM>());
}

TEST_F(QtWindowsTest, NothingIsThrownAcrossTheEventLoop) {
  windows.Deliver(programme, [] { throw Erreur_Execution(Erreur::Fichier_Introuvable, "X.log"); });
  EXPECT_EQ(messages.fatal_number, 53);
  EXPECT_TRUE(programme.Termine_Deja());
  WindowsBench other;
  other.windows.Deliver(other.programme, [] { throw std::out_of_range("ouch"); });
  EXPECT_EQ(other.messages.fatal_number, 51);
  EXPECT_TRUE(other.programme.Termine_Deja());
}

TEST_F(QtWindowsTest, TheFocusComesBackToWhatTheLogicChose) {
  windows.Deliver(programme, [&] {
    main.Indicatif_A.SetEnabled(false);
    main.Indicatif_A.SetEnabled(true);
  });
  EXPECT_EQ(window->focusWidget(), windows.WidgetOf(main.Indicatif_A));
}

TEST_F(QtWindowsTest, AForeignCharacterIsToldInTheStatusLine) {
  QTest::sendKeyEvent(QTest::Click, windows.WidgetOf(main.Indicatif_A), Qt::Key_unknown, QStringLiteral("ш"), {});
  EXPECT_TRUE(qobject_cast<QMainWindow*>(window)->statusBar()->currentMessage().contains(u'ш'));
}

// --- Boxes and dialogs ---

TEST(QtBoxes, MessagesKeepTheirLinesAndBlanks) {
  QtWindows windows;
  SeenMessages messages(windows);
  messages.Show("   !!! ATTENTION !!!\r\n<b>été</b>"_t);
  EXPECT_EQ(messages.text, QStringLiteral("   !!! ATTENTION !!!\n<b>été</b>"));
  EXPECT_EQ(messages.title, QStringLiteral("Vorelio"));
  EXPECT_EQ(messages.words, QStringList{QStringLiteral("OK")});
}

TEST(QtBoxes, QuestionsSpeakFrench) {
  QtWindows windows;
  SeenMessages messages(windows);
  messages.answer = QMessageBox::Yes;
  EXPECT_TRUE(messages.Ask("?", Buttons::YesNo, Icon::Question, Guard::None));
  EXPECT_EQ(messages.words, (QStringList{QStringLiteral("Non"), QStringLiteral("Oui")}));
  EXPECT_EQ(messages.first, QMessageBox::Yes);
  messages.answer = QMessageBox::Cancel;
  EXPECT_FALSE(messages.Ask("?", Buttons::OkCancel, Icon::Critical, Guard::None));
  EXPECT_EQ(messages.words, (QStringList{QStringLiteral("Annuler"), QStringLiteral("OK")}));
  EXPECT_EQ(messages.first, QMessageBox::Cancel);
  messages.Fatal(53, "Fichier introuvable");
  EXPECT_EQ(messages.words, QStringList{QStringLiteral("Quitter")});
}

TEST(QtBoxes, FileDialogs) {
  QtWindows windows;
  RecordedMessages messages;
  SeenDialogs dialogs(windows, messages);
  dialogs.answer = QStringLiteral("/tmp/été.not");
  EXPECT_EQ(dialogs.Save("/tmp", "", ".not |*.not"), "/tmp/été.not"_t);
  EXPECT_EQ(dialogs.folder, QStringLiteral("/tmp"));
  EXPECT_EQ(dialogs.filter, QStringLiteral(".not (*.not)+Tous les fichiers (*)"));
  EXPECT_EQ(dialogs.Save("/tmp", "F9QZX", ""), "/tmp/été.not"_t);
  EXPECT_EQ(dialogs.proposed, QStringList{QStringLiteral("/tmp/F9QZX")});
  EXPECT_EQ(dialogs.filter, QStringLiteral("Tous les fichiers (*)"));
  dialogs.answer.clear();
  EXPECT_TRUE(dialogs.Open("/tmp", "").empty());
  EXPECT_TRUE(messages.boxes.empty());
  dialogs.answer = QStringLiteral("/tmp/журнал.adi");
  EXPECT_TRUE(dialogs.Open("/tmp", "").empty());
  EXPECT_EQ(messages.boxes.size(), std::size_t{1});
}

TEST_F(QtWindowsTest, TheClipboardTellsWhatItCannotGive) {
  QtClipboard clipboard(messages);
  clipboard.SetText("d\xE9j\xE0\r\nvu");
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("déjà\nvu"));
  EXPECT_EQ(clipboard.Text(), std::string("d\xE9j\xE0\r\nvu"));
  EXPECT_TRUE(messages.boxes.empty());
  QApplication::clipboard()->setText(QStringLiteral("aф"));
  EXPECT_EQ(clipboard.Text(), std::string("a?"));
  EXPECT_EQ(messages.boxes.size(), std::size_t{1});
}

// --- The look ---

TEST(SmallScreen, HoldsTheMainWindow) {
  const struct { int zoom, width, height; } cases[] = {{100, 1280, 660}, {130, 1366, 708}};
  for (const auto& [zoom, width, height] : cases) {
    LookBench bench;
    QWidget* window = bench.windows.WindowOf(bench.programme.Fenetre<DDFM>());
    window->resize(width, height);
    bench.look.SetZoom(zoom);
    // The clocks come. Left to itself the timer could fire between this and the checks.
    bench.programme.Recoit([&] { bench.programme.Fenetre<DDFM>().Timer1.Fire(); });
    // No caption is cut, once the layouts have come to rest.
    const auto cut = [&] {
      for (const QLabel* label : window->findChildren<QLabel*>())
        if (label->isVisible() && label->width() < label->sizeHint().width() - 1) return label->text();
      return QString();
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return cut().isEmpty(); })) << qPrintable(cut());
    const auto* entry = window->findChild<QWidget*>(QStringLiteral("corps"));
    const auto* page = window->findChild<QScrollArea*>(QStringLiteral("page"));
    const auto hidden = [&] { return entry->minimumSizeHint().expandedTo(page->size()) != page->size(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return !hidden(); }))
        << entry->minimumSizeHint().width() << "x" << entry->minimumSizeHint().height() << " in " << page->width()
        << "x" << page->height();
    for (const QPushButton* button : window->findChildren<QPushButton*>())
      EXPECT_TRUE(!button->isVisible() || button->width() >= button->sizeHint().width()) << qPrintable(button->text());
    // A box keeps room for its words when the letters have grown.
    for (const QComboBox* combo : window->findChildren<QComboBox*>()) {
      const int words = combo->minimumContentsLength() * combo->fontMetrics().horizontalAdvance(u'X');
      EXPECT_TRUE(combo->minimumSizeHint().width() > words) << qPrintable(combo->objectName());
    }
  }
}

// What a screen of 1366x768 has left at a scale of one and a half.
TEST(SmallScreen, KeepsTheClocksAndFiveRowsOfTheLog) {
  LookBench bench;
  auto& main = bench.programme.Fenetre<DDFM>();
  for (int n = 0; n < 20; ++n) main.Liste_QSO.AddItem(std::string(205, 'x'));
  QWidget* window = bench.windows.WindowOf(main);
  window->resize(895, 472);
  auto* log = dynamic_cast<RowsView*>(bench.windows.WidgetOf(main.Liste_QSO));
  EXPECT_TRUE(QTest::qWaitFor([&] { return log->viewport()->height() >= 5 * log->RowSize().height(); }));
  EXPECT_EQ(window->size(), QSize(895, 472));
  const auto whole = [&](Control& control) {
    const QWidget* widget = bench.windows.WidgetOf(control);
    return widget->visibleRegion().boundingRect() == widget->rect();
  };
  EXPECT_TRUE(whole(main.Label37) && whole(main.Label34) && whole(main.Label33) && whole(main.Liste_QSO));
  // Also a key that leads to a field out of sight shows it.
  bench.programme.Recoit([&] { main.Remarques_A.SetEnabled(true); });
  bench.windows.WidgetOf(main.Remarques_A)->setFocus(Qt::ShortcutFocusReason);
  EXPECT_TRUE(QTest::qWaitFor([&] { return whole(main.Remarques_A); }));
}

TEST_F(LookTest, AWindowStandsOnTheScreenWithItsFrame) {
  auto& main = programme.Fenetre<DDFM>();
  QWidget* window = windows.WindowOf(main);
  const QRect room = window->screen()->availableGeometry();
  // A title bar and borders as most desktops have them.
  EXPECT_TRUE(room.contains(QRect(window->pos(), window->size() + QSize(16, 40))))
      << window->x() << " " << window->y() << " " << window->width() << " " << window->height();
}

// The page of a window that outgrows its screen leads to every control.
TEST_F(LookTest, AWindowWithLargeLettersFitsItsScreen) {
  look.SetZoom(Appearance::kSmallest);
  auto& labels = Open<Etiquettes>();
  QWidget* window = windows.WindowOf(labels);
  const QSize room = window->screen()->availableSize();
  const auto fits = [&] { return window->width() < room.width() && window->height() < room.height(); };
  EXPECT_TRUE(fits());
  EXPECT_FALSE(window->findChild<QScrollArea*>());
  const QWidget* rig = windows.WidgetOf(labels.RxTx);
  const QWidget* after = rig->nextInFocusChain();
  look.SetZoom(Appearance::kLargest);
  const QWidget* button = windows.WidgetOf(labels.Imprime);
  const auto scrolled = [&] {
    return fits() && button->width() >= button->sizeHint().width() && button->visibleRegion().isEmpty();
  };
  EXPECT_TRUE(QTest::qWaitFor(scrolled));
  programme.Recoit([&] { labels.Imprime.SetFocus(); });
  EXPECT_EQ(button->visibleRegion().boundingRect(), button->rect());
  EXPECT_EQ(rig->nextInFocusChain(), after);
}

TEST_F(LookTest, TheViewMenuAndWhatItRemembers) {
  auto& main = programme.Fenetre<DDFM>();
  QWidget* window = windows.WindowOf(main);
  window->resize(777, 555);
  EXPECT_TRUE(QTest::qWaitForWindowActive(window));
  QTest::keyClick(window, Qt::Key_Plus, Qt::ControlModifier);
  QTest::keyClick(window, Qt::Key_Plus, Qt::ControlModifier);
  QTest::keyClick(window, Qt::Key_G, Qt::ControlModifier);
  EXPECT_EQ(programme.Focus(), &main.Dpt(1));
  QTest::keyClick(window, Qt::Key_J, Qt::ControlModifier);
  EXPECT_EQ(programme.Focus(), &main.Liste_QSO);
  // The desktop's change is followed as long as nothing else was chosen.
  look.DesktopChanged(true);
  EXPECT_TRUE(look.Dark());
  EXPECT_EQ(QApplication::palette().color(QPalette::Window), ThemePalette(true).color(QPalette::Window));
  look.SetTheme(Appearance::Theme::Dark);
  look.DesktopChanged(false);
  EXPECT_TRUE(look.Dark());
  EXPECT_EQ(look.Zoom(), 120);
  EXPECT_DOUBLE_EQ(windows.WidgetOf(main.Liste_QSO)->font().pointSizeF(), before.pointSizeF() * 1.2);
  window->close();
  windows.ShowPending();
  const Appearance next(memory);
  EXPECT_EQ(next.Zoom(), 120);
  EXPECT_TRUE(next.Dark());
  QWidget other;
  EXPECT_TRUE(other.restoreGeometry(memory.value(QStringLiteral("Fenetres/DDFM")).toByteArray()));
  EXPECT_EQ(other.size(), QSize(777, 555));
  look.SetZoom(1000);
  EXPECT_EQ(look.Zoom(), Appearance::kLargest);
}

}  // namespace
}  // namespace vorelio::tests
