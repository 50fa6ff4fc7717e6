#pragma once

#include <gtest/gtest.h>

#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QString>
#include <QTest>
#include <QVBoxLayout>
#include <memory>
#include <string>
#include <vector>

#include "forms/programme.h"
#include "platform/posix_disk.h"
#include "qt/binder.h"
#include "qt/qt_text.h"
#include "qt/qt_windows.h"
#include "qt/window_extras.h"
#include "stations/station_files.h"
#include "support/outside.h"

// Outside Qt's own test classes these end a test without failing it.
#undef QVERIFY
#undef QVERIFY2
#undef QCOMPARE

namespace vorelio::tests {

/// A test on a bench of its own.
template <typename Bench>
class On : public ::testing::Test, public Bench {};

/// A program on the real windows, with doubles for all else and a station of its own.
struct WindowsBench : Outside {
  WindowsBench() {
    CopyTemplates(folder.Path());
    Sous_Programmes::Cree_Fichiers_Station(programme, "F9QZX");
    SeedStationSettings(settings, folder.Path(), '/', "F9QZX", "JN33BB");
  }

  template <typename F>
  F& Open() {
    windows.Deliver(programme, [this] { programme.Fenetre<F>().Show(); });
    windows.ShowPending();
    return programme.Fenetre<F>();
  }

  ScratchFolder folder;
  PosixDisk disk;
  QtWindows windows;
  Programme programme{Join(windows, disk, folder.Path())};
};

/// What the program itself adds to its windows, such as the view menu, and what it remembers of them.
struct ProgramLook {
  decltype(QtWindows::Furnish) Furnisher() {
    return [this](const Form& form, QWidget& window) { return extras.Furnish(form, window); };
  }

  ScratchFolder memory_folder;
  QSettings memory{ToQt(memory_folder.File("Fenetres.ini")), QSettings::IniFormat};
  Appearance look{memory};
  WindowExtras extras{look, memory};
};

/// A gate that lets everything through and notes what passes.
class OpenGate : public Gate {
 public:
  void Deliver(Programme& programme, const std::function<void()>& action) override { programme.Recoit(action); }
  void Later(View& view) override {
    ++asked;
    waiting.emplace_back(&view);
  }
  void Notice(QWidget&, const QString& text) override { notices << text; }
  void FocusLost() override { ++lost; }

  void Refresh() {
    for (const QPointer<View>& view : std::exchange(waiting, {}))
      if (view) view->Refresh();
  }

  QStringList notices;
  int asked = 0;
  int lost = 0;
  std::vector<QPointer<View>> waiting;
};

/// Forms are made by the program; a test's form derives from this and holds the controls that the test is about.
class TestForm : public Form {
 public:
  explicit TestForm(Programme& programme) : Form(programme, "Essai", "Essai") {}
};

/// A form of the test's own, bound to widgets of the test's own.
template <typename F>
struct ControlBench : Outside {
  ControlBench() {
    programme.Recoit([this] { programme.Fenetre<F>().Show(); });
    new QVBoxLayout(&window);
  }

  F& form() { return programme.Fenetre<F>(); }

  /// A widget of the window that bears a control's name.
  template <typename W>
  W* Add(W* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    window.layout()->addWidget(widget);
    return widget;
  }

  void Bind() {
    binding = std::make_unique<Binding>(form(), window, gate);
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  ScratchFolder folder;
  SilentWindows screen;
  PosixDisk disk;
  OpenGate gate;
  Programme programme{Join(screen, disk, folder.Path())};
  QWidget window;
  std::unique_ptr<Binding> binding;
};

}  // namespace vorelio::tests
