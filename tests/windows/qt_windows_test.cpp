#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QStatusBar>

#include "core/errors.h"
#include "core/loading_window.h"
#include "core/log_file.h"
#include "core/station_form.h"
#include "core/text.h"
#include "entry/ddfm.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/qt_file_dialogs.h"
#include "platform/qt/qt_messages.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/window_extras.h"
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

}  // namespace

class QtWindowsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  // Hiding and showing within one procedure leaves the window alone.
  void AQuickLoadDoesNotFlicker() {
    WindowsBench bench;
    auto& main = bench.Open<DDFM>();
    QWidget* window = bench.windows.WindowOf(main);
    int hides = 0;
    EventCount counter(window, QEvent::Hide, hides);
    bench.windows.Deliver(bench.programme, [&] { Sous_Programmes::Charge_Log(bench.programme, "F9QZX"); });
    QCoreApplication::processEvents();
    QCOMPARE(hides, 0);
    QVERIFY(window->isVisible());
  }

  void ALongLoadShowsTheSmallWindow() {
    WindowsBench bench;
    auto& main = bench.Open<DDFM>();
    auto& small = bench.programme.Fenetre<Chargement>();
    bench.windows.Deliver(bench.programme, [&] {
      main.Hide();
      small.Show();
      QTest::qSleep(30);
      bench.windows.ServeEvents();
      QVERIFY(bench.windows.WindowOf(main)->isVisible());
      QTest::qSleep(180);
      bench.windows.ServeEvents();
      QVERIFY(!bench.windows.WindowOf(main)->isVisible());
      QVERIFY(bench.windows.WindowOf(small)->isVisible());
      small.Hide();
      main.Show();
    });
    QTRY_VERIFY(bench.windows.WindowOf(main)->isVisible());
    QVERIFY(!bench.windows.WindowOf(small)->isVisible());
  }

  void ServingEventsCostsNextToNothing() {
    WindowsBench bench;
    bench.Open<DDFM>();
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < 100'000; ++i) bench.windows.ServeEvents();
    QVERIFY2(time.elapsed() < 500, qPrintable(QString::number(time.elapsed())));
  }

  void ServingEventsLetsThemIn() {
    WindowsBench bench;
    auto& main = bench.Open<DDFM>();
    bool came = false;
    QTimer::singleShot(0, this, [&] { came = true; });
    bench.windows.Deliver(bench.programme, [&] {
      QElapsedTimer time;
      time.start();
      while (!came && time.elapsed() < 2000) bench.windows.ServeEvents();
    });
    QVERIFY(came);
    QVERIFY(main.Visible());
  }

  void AModalWindowLocksTheOthersAndBlocksItsCaller() {
    WindowsBench bench;
    auto& main = bench.Open<DDFM>();
    bool back = false, locked = false;
    QTimer::singleShot(0, this, [&] {
      auto& station = bench.programme.Fenetre<Station>();
      QVERIFY(!back);
      locked = bench.windows.WindowOf(station)->isModal() && !main.Indicatif_A.Reachable();
      // As the user closes it.
      bench.windows.WindowOf(station)->close();
    });
    bench.windows.Deliver(bench.programme, [&] {
      bench.programme.Fenetre<Station>().ShowModal();
      back = true;
    });
    QVERIFY(back && locked);
    QVERIFY(main.Indicatif_A.Reachable());
    QVERIFY(!bench.programme.Ouverte<Station>());
  }

  void EscapeClosesASecondaryWindow() {
    WindowsBench bench;
    auto& main = bench.Open<DDFM>();
    auto& prefix = bench.Open<Ajout_Prefixe>();
    QWidget* window = bench.windows.WindowOf(prefix);
    QVERIFY(QTest::qWaitForWindowActive(window));
    QCOMPARE(window->focusWidget(), bench.windows.WidgetOf(prefix.N_Prefixe));
    QTest::keyClick(window, Qt::Key_Escape);
    QVERIFY(!bench.programme.Ouverte<Ajout_Prefixe>());
    bench.windows.WindowOf(main)->activateWindow();
    QTest::keyClick(bench.windows.WindowOf(main), Qt::Key_Escape);
    QVERIFY(bench.programme.Ouverte<DDFM>());
  }

  void NothingIsThrownAcrossTheEventLoop() {
    {
      WindowsBench bench;
      bench.windows.Deliver(bench.programme, [] { throw Erreur_Execution(Erreur::Fichier_Introuvable, "X.log"); });
      QCOMPARE(bench.messages.fatal_number, 53);
      QVERIFY(bench.programme.Termine_Deja());
    }
    WindowsBench bench;
    bench.windows.Deliver(bench.programme, [] { throw std::out_of_range("ouch"); });
    QCOMPARE(bench.messages.fatal_number, 51);
    QVERIFY(bench.programme.Termine_Deja());
  }

  void TheFocusComesBackToWhatTheLogicChose() {
    WindowsBench bench;
    auto& main = bench.Open<DDFM>();
    QWidget* window = bench.windows.WindowOf(main);
    bench.windows.Deliver(bench.programme, [&] {
      main.Indicatif_A.SetEnabled(false);
      main.Indicatif_A.SetEnabled(true);
    });
    QCOMPARE(window->focusWidget(), bench.windows.WidgetOf(main.Indicatif_A));
  }

  void AForeignCharacterIsToldInTheStatusLine() {
    WindowsBench bench;
    auto& main = bench.Open<DDFM>();
    QTest::sendKeyEvent(QTest::Click, bench.windows.WidgetOf(main.Indicatif_A), Qt::Key_unknown, QStringLiteral("ш"),
                        {});
    const auto* window = qobject_cast<QMainWindow*>(bench.windows.WindowOf(main));
    QVERIFY(window->statusBar()->currentMessage().contains(u'ш'));
  }

  // --- Boxes and dialogs ---

  void MessagesKeepTheirLinesAndBlanks() {
    QtWindows windows;
    SeenMessages messages(windows);
    messages.Show("   !!! ATTENTION !!!\r\n<b>été</b>"_t);
    QCOMPARE(messages.text, QStringLiteral("   !!! ATTENTION !!!\n<b>été</b>"));
    QCOMPARE(messages.title, QStringLiteral("Vorelio"));
    QCOMPARE(messages.words, QStringList{QStringLiteral("OK")});
  }

  void QuestionsSpeakFrench() {
    QtWindows windows;
    SeenMessages messages(windows);
    messages.answer = QMessageBox::Yes;
    QVERIFY(messages.Ask("?", Buttons::YesNo, Icon::Question));
    QCOMPARE(messages.words, (QStringList{QStringLiteral("Non"), QStringLiteral("Oui")}));
    QCOMPARE(messages.first, QMessageBox::Yes);
    messages.answer = QMessageBox::Cancel;
    QVERIFY(!messages.Ask("?", Buttons::OkCancel, Icon::Critical));
    QCOMPARE(messages.words, (QStringList{QStringLiteral("Annuler"), QStringLiteral("OK")}));
    QCOMPARE(messages.first, QMessageBox::Cancel);
    messages.Fatal(53, "Fichier introuvable");
    QCOMPARE(messages.words, QStringList{QStringLiteral("Quitter")});
  }

  void FileDialogs() {
    QtWindows windows;
    RecordedMessages messages;
    SeenDialogs dialogs(windows, messages);
    dialogs.answer = QStringLiteral("/tmp/été.not");
    QCOMPARE(dialogs.Save("/tmp", "", ".not |*.not"), "/tmp/été.not"_t);
    QCOMPARE(dialogs.folder, QStringLiteral("/tmp"));
    QCOMPARE(dialogs.filter, QStringLiteral(".not (*.not)+Tous les fichiers (*)"));
    QCOMPARE(dialogs.Save("/tmp", "F9QZX", ""), "/tmp/été.not"_t);
    QCOMPARE(dialogs.proposed, QStringList{QStringLiteral("/tmp/F9QZX")});
    QCOMPARE(dialogs.filter, QStringLiteral("Tous les fichiers (*)"));
    dialogs.answer.clear();
    QVERIFY(dialogs.Open("/tmp", "").empty());
    QVERIFY(messages.boxes.empty());
    dialogs.answer = QStringLiteral("/tmp/журнал.adi");
    QVERIFY(dialogs.Open("/tmp", "").empty());
    QCOMPARE(messages.boxes.size(), std::size_t{1});
  }

  void TheClipboardTellsWhatItCannotGive() {
    WindowsBench bench;
    QtClipboard clipboard(bench.messages);
    clipboard.SetText("d\xE9j\xE0\r\nvu");
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("déjà\nvu"));
    QCOMPARE(clipboard.Text(), std::string("d\xE9j\xE0\r\nvu"));
    QVERIFY(bench.messages.boxes.empty());
    QApplication::clipboard()->setText(QStringLiteral("aф"));
    QCOMPARE(clipboard.Text(), std::string("a?"));
    QCOMPARE(bench.messages.boxes.size(), std::size_t{1});
  }

  // --- The look ---

  void TheWindowFitsASmallScreen_data() {
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("1280x720") << 100 << 1280 << 660;
    QTest::newRow("1366x768, larger letters") << 130 << 1366 << 708;
  }
  void TheWindowFitsASmallScreen() {
    QFETCH(int, zoom);
    QFETCH(int, width);
    QFETCH(int, height);
    const ScratchFolder folder;
    QSettings memory(QString::fromStdString(folder.File("Fenetres.ini")), QSettings::IniFormat);
    const QFont before = QApplication::font();
    Appearance look(memory);
    WindowExtras extras(look, memory);
    WindowsBench bench;
    bench.windows.Furnish = [&](const Form& form, QWidget& window) { return extras.Furnish(form, window); };
    auto& main = bench.Open<DDFM>();
    QWidget* window = bench.windows.WindowOf(main);
    window->resize(width, height);
    look.SetZoom(zoom);
    // The clocks come, and the layouts follow. Left to itself the timer could fire between these and the checks.
    bench.programme.Recoit([&] { main.Timer1.Fire(); });
    QTest::qWait(50);
    const QWidget* page = window->findChild<QWidget*>(QStringLiteral("centre"));
    const QSize least = page->minimumSizeHint();
    QVERIFY2(least.width() <= width && least.height() <= height - 60,
             qPrintable(QStringLiteral("%1x%2").arg(least.width()).arg(least.height())));
    // No caption is cut.
    for (const QLabel* label : window->findChildren<QLabel*>())
      if (label->isVisible())
        QVERIFY2(label->width() >= label->sizeHint().width() - 1, qPrintable(label->objectName() + label->text()));
    for (const QPushButton* button : window->findChildren<QPushButton*>())
      if (button->isVisible()) QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->text()));
    // A box keeps room for its words when the letters have grown.
    for (const QComboBox* combo : window->findChildren<QComboBox*>()) {
      const int words = combo->minimumContentsLength() * combo->fontMetrics().horizontalAdvance(u'X');
      QVERIFY2(combo->minimumSizeHint().width() > words, qPrintable(combo->objectName()));
    }
    look.SetZoom(100);
    QApplication::setFont(before);
  }

  void TheViewMenuAndWhatItRemembers() {
    const ScratchFolder folder;
    QSettings memory(QString::fromStdString(folder.File("Fenetres.ini")), QSettings::IniFormat);
    const QFont before = QApplication::font();
    Appearance look(memory);
    WindowExtras extras(look, memory);
    WindowsBench bench;
    bench.windows.Furnish = [&](const Form& form, QWidget& window) { return extras.Furnish(form, window); };
    auto& main = bench.Open<DDFM>();
    bench.windows.WindowOf(main)->resize(777, 555);
    QVERIFY(QTest::qWaitForWindowActive(bench.windows.WindowOf(main)));
    QTest::keyClick(bench.windows.WindowOf(main), Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(bench.windows.WindowOf(main), Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(bench.windows.WindowOf(main), Qt::Key_G, Qt::ControlModifier);
    QCOMPARE(bench.programme.Focus(), &main.Dpt(1));
    QTest::keyClick(bench.windows.WindowOf(main), Qt::Key_J, Qt::ControlModifier);
    QCOMPARE(bench.programme.Focus(), &main.Liste_QSO);
    // The desktop's change is followed as long as nothing else was chosen.
    look.DesktopChanged(true);
    QVERIFY(look.Dark());
    QCOMPARE(QApplication::palette().color(QPalette::Window), ThemePalette(true).color(QPalette::Window));
    look.SetTheme(Appearance::Theme::Dark);
    look.DesktopChanged(false);
    QVERIFY(look.Dark());
    QCOMPARE(look.Zoom(), 120);
    QCOMPARE(bench.windows.WidgetOf(main.Liste_QSO)->font().pointSizeF(), before.pointSizeF() * 1.2);
    bench.windows.WindowOf(main)->close();
    bench.windows.ShowPending();
    const Appearance next(memory);
    QCOMPARE(next.Zoom(), 120);
    QVERIFY(next.Dark());
    QWidget other;
    QVERIFY(other.restoreGeometry(memory.value(QStringLiteral("Fenetres/DDFM")).toByteArray()));
    QCOMPARE(other.size(), QSize(777, 555));
    look.SetZoom(1000);
    QCOMPARE(look.Zoom(), Appearance::kLargest);
    QApplication::setFont(before);
    QApplication::setPalette(QPalette());
  }

 private:
  /// Counts events of one kind.
  class EventCount : public QObject {
   public:
    EventCount(QObject* watched, QEvent::Type kind, int& count) : QObject(watched), kind_(kind), count_(count) {
      watched->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == kind_) ++count_;
      return false;
    }

   private:
    QEvent::Type kind_;
    int& count_;
  };
};

const InSuite<QtWindowsTest> kQtWindowsTest;

}  // namespace vorelio::tests

#include "qt_windows_test.moc"
