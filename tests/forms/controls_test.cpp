#include "forms/controls.h"

#include <random>

#include "core/text.h"
#include "forms/programme.h"
#include "support/error_of.h"
#include "support/rows.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

/// A window that writes down the events it gets.
class Page : public Form {
 public:
  Page(Programme& programme, std::string_view name) : Form(programme, name, name) {
    combo.Click = [this] { events.push_back("combo " + std::to_string(combo.ListIndex())); };
    sorted.Click = [this] { events.push_back("sorted " + std::to_string(sorted.ListIndex())); };
    sorted.DblClick = [this] { events.push_back("double " + std::to_string(sorted.ListIndex())); };
    button.Click = [this] {
      events.push_back("button");
      if (on_button) on_button();
    };
    box.Click = [this] { events.push_back(box.Checked() ? "box on" : "box off"); };
    for (OptionButton* option : {&one, &two, &other})
      option->Click = [this, option] { events.push_back(option->Name()); };
    field.KeyPress = [this](int& key) {
      events.push_back("key " + std::to_string(key));
      if (on_key) on_key(key);
    };
  }

  void Form_Load() override { events.push_back("load"); }
  void Form_Unload() override { events.push_back("unload"); }

  TextField field{*this, "field", "ab"};
  TextField lines{*this, "lines", "", true};
  TextField fixed{*this, "fixed", "fixe"};
  ControlArray<TextField> cells{*this, "cells", 1, 3, "x"};
  ComboBox combo{*this, "combo", ComboBox::Kind::Choice};
  ComboBox editable{*this, "editable", ComboBox::Kind::Editable, "144 MHz"};
  ListBox sorted{*this, "sorted", ListBox::Kind::Sorted};
  ListBox ticks{*this, "ticks", ListBox::Kind::Checked};
  Button button{*this, "button", "Button"};
  CheckBox box{*this, "box", "Box"};
  OptionButton one{*this, "one", "One", "first", true};
  OptionButton two{*this, "two", "Two", "first"};
  OptionButton other{*this, "other", "Other", "second"};
  Timer timer{*this, "timer", 1000};

  std::vector<std::string> events;
  std::function<void(int&)> on_key;
  std::function<void()> on_button;
};

class MainPage : public Page {
 public:
  explicit MainPage(Programme& programme) : Page(programme, "MainPage") {}
  bool Main() const override { return true; }
};

class ModalPage : public Page {
 public:
  explicit ModalPage(Programme& programme) : Page(programme, "ModalPage") {}
};

class Controls : public StationFixture {
 protected:
  Controls() {
    page.Show();
    page.events.clear();
  }

  void Type(TextField& field, std::string_view keys) {
    for (const char key : keys) Event([&] { field.UserKey(static_cast<unsigned char>(key)); });
  }

  std::vector<std::string> Events() { return std::exchange(page.events, {}); }

  MainPage& page = programme->Fenetre<MainPage>();
};

// --- Text fields ----------------------------------------------------------------------------------------------------

TEST_F(Controls, SetTextFiresNothingAndStandsSelected) {
  page.field.SetText("F6ABC");
  EXPECT_EQ(Events(), Lines{});
  EXPECT_EQ(page.field.Caret(), 0);
  EXPECT_EQ(page.field.SelectionLength(), 5);
  Type(page.field, "xy");
  EXPECT_EQ(page.field.Text(), "xy");
  EXPECT_EQ(page.field.Caret(), 2);
}

TEST_F(Controls, KeysJoinAtTheCaret) {
  struct {
    int caret, length;
    const char *keys, *text;
    int after;
  } const cases[] = {{0, 0, "x", "xab", 1}, {2, 0, "x", "abx", 3}, {0, 1, "xy", "xyb", 2},
                     {1, 9, "x", "ax", 2},  {9, 0, "x", "abx", 3}, {-1, 0, "x", "xab", 1}};
  for (const auto& each : cases) {
    page.field.SetText("ab");
    page.field.SetCaret(each.caret, each.length);
    Type(page.field, each.keys);
    EXPECT_EQ(page.field.Text(), each.text);
    EXPECT_EQ(page.field.Caret(), each.after);
    EXPECT_EQ(page.field.SelectionLength(), 0);
  }
}

TEST_F(Controls, KeyPressRunsFirstAndMayChangeOrDrop) {
  page.field.SetText("");
  page.on_key = [&](int& key) {
    EXPECT_EQ(page.field.Text().find('b'), std::string::npos);
    key = key == 'b' ? 0 : Touche_Majuscule(key);
  };
  Type(page.field, "abc\r");
  EXPECT_EQ(page.field.Text(), "AC");
  EXPECT_EQ(Events(), (Lines{"key 97", "key 98", "key 99", "key 13"}));
  // What the handler itself writes is what the key then joins.
  page.on_key = [&](int&) {
    page.field.SetText("12/");
    page.field.SetCaret(3);
  };
  Type(page.field, "5");
  EXPECT_EQ(page.field.Text(), "12/5");
}

TEST_F(Controls, EnterJoinsOnlySeveralLines) {
  Type(page.lines, "a\rb");
  EXPECT_EQ(page.lines.Text(), "a\r\nb");
  page.fixed.SetText("a");
  page.fixed.SetCaret(1);
  Type(page.fixed, "\rb");
  EXPECT_EQ(page.fixed.Text(), "ab");
}

TEST_F(Controls, ReadOnlyTakesFocusAndPasteButNoKeys) {
  page.field.SetReadOnly(true);
  Type(page.field, "x");
  EXPECT_EQ(page.field.Text(), "ab");
  EXPECT_EQ(Events(), Lines{"key 120"});
  EXPECT_EQ(programme->Focus(), &page.field);
  Event([&] { page.field.UserText("collé"_t, 2); });
  EXPECT_EQ(page.field.Text(), "collé"_t);
  EXPECT_EQ(page.field.Caret(), 2);
  EXPECT_EQ(Events(), Lines{});
}

// --- Lists ----------------------------------------------------------------------------------------------------------

TEST_F(Controls, ManyRowsAtOnceAreAsOneByOne) {
  const Lines first = {"b", "d"}, more = {"e", "\xE9", "a", "d", "Z", "b"};
  for (const int selected : {-1, 0, 1}) {
    page.sorted.ClearItems();
    page.sorted.AddItems(first);
    page.sorted.SetListIndex(selected);
    for (const std::string& row : more) page.sorted.AddItem(row);
    const Lines rows = Texts(page.sorted.Items());
    const int index = page.sorted.ListIndex();
    page.sorted.ClearItems();
    page.sorted.AddItems(first);
    page.sorted.SetListIndex(selected);
    page.sorted.AddItems(more);
    EXPECT_EQ(Texts(page.sorted.Items()), rows);
    EXPECT_EQ(page.sorted.ListIndex(), index);
  }
}

TEST_F(Controls, RowsAreAsAVectorOfTexts) {
  Rows rows;
  Lines lines;
  std::mt19937 dice(1);
  for (int i = 0; i < 2000; ++i) {
    const std::size_t place = dice() % (lines.size() + 1);
    const std::string text(dice() % 40, static_cast<char>('a' + i % 26));
    const auto at = lines.begin() + static_cast<std::ptrdiff_t>(place);
    if (dice() % 3 == 0 || place == lines.size()) {
      rows.Insert(place, text);
      lines.insert(at, text);
    } else if (dice() % 3 == 0) {
      rows.Erase(place);
      lines.erase(at);
    } else if (dice() % 2 == 0) {
      rows.Replace(place, text);
      *at = text;
    } else {
      const std::string head = text.substr(0, at->size());
      rows.WriteOver(place, head);
      at->replace(0, head.size(), head);
    }
    ASSERT_EQ(Texts(rows), lines) << i;
  }
  EXPECT_GT(lines.size(), 100U);
}

TEST_F(Controls, SortedListGoesByBytesEqualOnesByArrival) {
  for (const char* row : {"b", "a", "\xE9", "Z", "a ", "b", " z"}) page.sorted.AddItem(row);
  EXPECT_EQ(Texts(page.sorted.Items()), (Lines{" z", "Z", "a", "a ", "b", "b", "\xE9"}));
  // Equal rows can't be told apart by their text: the selection, which stays on its row, tells where the new one went.
  page.sorted.SetListIndex(4);
  page.sorted.AddItem("b");
  EXPECT_EQ(page.sorted.ListIndex(), 4);
  page.sorted.SetListIndex(6);
  page.sorted.AddItem("b");
  EXPECT_EQ(page.sorted.ListIndex(), 6);
}

TEST_F(Controls, SelectionFollowsItsRow) {
  for (const char* row : {"b", "d"}) page.sorted.AddItem(row);
  page.sorted.SetListIndex(1);
  Events();
  page.sorted.AddItem("c");
  EXPECT_EQ(page.sorted.ListIndex(), 2);
  page.sorted.AddItem("e");
  EXPECT_EQ(page.sorted.Text(), "d");
  page.sorted.RemoveItem(0);
  EXPECT_EQ(page.sorted.ListIndex(), 1);
  page.sorted.RemoveItem(2);
  EXPECT_EQ(page.sorted.Text(), "d");
  page.sorted.RemoveItem(1);
  EXPECT_EQ(page.sorted.ListIndex(), -1);
  EXPECT_EQ(page.sorted.Text(), "");
  EXPECT_EQ(Events(), Lines{});
}

TEST_F(Controls, EachSettingOfAnIndexIsAClick) {
  for (const char* row : {"14 Mhz", "50 Mhz"}) page.combo.AddItem(row);
  page.combo.SetListIndex(1);
  page.combo.SetListIndex(1);
  Event([&] { page.combo.UserSelect(0); });
  page.combo.SetListIndex(-1);
  EXPECT_EQ(Events(), (Lines{"combo 1", "combo 1", "combo 0", "combo -1"}));
  EXPECT_EQ(page.combo.Text(), "");
  EXPECT_EQ(ErrorOf([&] { page.combo.SetListIndex(2); }), 9);
  EXPECT_EQ(ErrorOf([&] { page.combo.SetListIndex(-2); }), 9);
  EXPECT_EQ(Events(), Lines{});
  page.combo.SetListIndex(0);
  // A text that is set picks its row, and is no click.
  page.combo.SetText("50 Mhz");
  EXPECT_EQ(page.combo.ListIndex(), 1);
  page.combo.SetText("70 Mhz");
  EXPECT_EQ(page.combo.ListIndex(), -1);
  EXPECT_EQ(page.combo.Text(), "70 Mhz");
  page.editable.AddItem("SSB");
  page.editable.SetText("SSB");
  EXPECT_EQ(page.editable.ListIndex(), 0);
  // So does one that is typed, at the letter that completes it and no longer.
  for (const char key : std::string("SSBX")) Event([&] { page.editable.UserKey(key); });
  EXPECT_EQ(page.editable.ListIndex(), -1);
  Event([&] { page.editable.UserText("SSB"); });
  EXPECT_EQ(page.editable.ListIndex(), 0);
  EXPECT_EQ(Events(), Lines{"combo 0"});
}

TEST_F(Controls, RowsOutsideTheList) {
  page.sorted.AddItem("a");
  EXPECT_EQ(page.sorted.Item(-1), "");
  EXPECT_EQ(page.sorted.Item(1), "");
  EXPECT_EQ(ErrorOf([&] { page.sorted.RemoveItem(1); }), 5);
  EXPECT_EQ(ErrorOf([&] { page.sorted.RemoveItem(-1); }), 5);
  EXPECT_EQ(ErrorOf([&] { page.cells(0); }), 9);
  EXPECT_EQ(ErrorOf([&] { page.cells(4); }), 9);
  EXPECT_EQ(page.cells(3).Name(), "cells(3)");
  EXPECT_EQ(page.Find("cells(2)"), &page.cells(2));
  EXPECT_EQ(page.Find("cells"), nullptr);
}

TEST_F(Controls, DoubleClickPicksTheRowFirst) {
  for (const char* row : {"a", "b"}) page.sorted.AddItem(row);
  Event([&] { page.sorted.UserDblClick(1); });
  Event([&] { page.sorted.UserDblClick(-1); });
  EXPECT_EQ(Events(), (Lines{"sorted 1", "double 1", "double 1"}));
}

TEST_F(Controls, TicksBelongToTheirRows) {
  for (const char* row : {"a", "b", "c"}) page.ticks.AddItem(row);
  Event([&] { page.ticks.UserTick(1); });
  Event([&] { page.ticks.UserTick(2); });
  Event([&] { page.ticks.UserTick(2); });
  page.ticks.RemoveItem(0);
  EXPECT_TRUE(page.ticks.Checked(0));
  EXPECT_FALSE(page.ticks.Checked(1));
  EXPECT_FALSE(page.ticks.Checked(2));
  page.ticks.ClearItems();
  page.ticks.AddItem("a");
  EXPECT_FALSE(page.ticks.Checked(0));
}

TEST_F(Controls, KeysInComboBoxes) {
  for (const char* row : {"14 Mhz", "144 Mhz", "1.3 Ghz"}) page.combo.AddItem(row);
  const auto type = [&](ComboBox& combo, std::string_view keys) {
    combo.UserKeysBegin();
    for (const char key : keys) Event([&] { combo.UserKey(key); });
  };
  type(page.combo, "144");
  EXPECT_EQ(page.combo.Text(), "144 Mhz");
  type(page.combo, "1.3 g");
  EXPECT_EQ(page.combo.Text(), "1.3 Ghz");
  // The first key takes the place of the text that stood there, the next ones join it.
  page.editable.AddItem("SSB");
  type(page.editable, "cw");
  EXPECT_EQ(page.editable.Text(), "cw");
  page.editable.SetListIndex(0);
  type(page.editable, "am");
  EXPECT_EQ(page.editable.Text(), "am");
  EXPECT_EQ(page.editable.ListIndex(), -1);
}

// --- Buttons --------------------------------------------------------------------------------------------------------

TEST_F(Controls, ButtonsClickAtEachChangeAndOptionsExcludeEachOther) {
  page.other.SetOn();
  page.two.SetOn();
  page.two.SetOn();
  Event([&] { page.two.UserClick(); });
  EXPECT_EQ(Events(), (Lines{"other", "two"}));
  EXPECT_FALSE(page.one.Set());
  EXPECT_TRUE(page.two.Set());
  EXPECT_TRUE(page.other.Set());

  page.box.SetChecked(true);
  page.box.SetChecked(true);
  Event([&] { page.box.UserClick(); });
  EXPECT_EQ(Events(), (Lines{"box on", "box off"}));
}

TEST_F(Controls, UnreachableControlsTakeNothing) {
  page.sorted.AddItem("a");
  const auto poke = [&] {
    Type(page.field, "x");
    Event([&] { page.field.UserText("y", 0); });
    Event([&] { page.button.UserClick(); });
    Event([&] { page.sorted.UserDblClick(0); });
    Event([&] { page.sorted.UserSelect(0); });
    Event([&] { page.two.UserClick(); });
    Event([&] { page.box.UserClick(); });
  };
  const auto each = [&](void (Control::*set)(bool), bool on) {
    for (Control* control : page.Controls()) (control->*set)(on);
  };
  const std::function<void(bool)> reaches[] = {[&](bool on) { each(&Control::SetEnabled, on); },
                                               [&](bool on) { each(&Control::SetVisible, on); },
                                               [&](bool on) { on ? page.Show() : page.Hide(); }};
  for (const auto& reach : reaches) {
    reach(false);
    poke();
    EXPECT_EQ(Events(), Lines{});
    EXPECT_EQ(page.field.Text(), "ab");
    EXPECT_EQ(programme->Focus(), nullptr);
    reach(true);
  }
  poke();
  EXPECT_EQ(Events(), (Lines{"key 120", "button", "sorted 0", "double 0", "sorted 0", "two", "box on"}));
}

TEST_F(Controls, ProceduresActOnDisabledControls) {
  page.combo.AddItem("a");
  page.combo.SetEnabled(false);
  page.field.SetEnabled(false);
  page.combo.SetListIndex(0);
  page.field.SetText("z");
  EXPECT_EQ(Events(), Lines{"combo 0"});
  EXPECT_EQ(page.field.Text(), "z");
  page.field.SetFocus();
  EXPECT_EQ(programme->Focus(), nullptr);
  page.timer.SetEnabled(false);
  page.timer.Tick = [&] { page.events.push_back("tick"); };
  Event([&] { page.timer.Fire(); });
  page.timer.SetEnabled(true);
  Event([&] { page.timer.Fire(); });
  EXPECT_EQ(Events(), Lines{"tick"});
}

// --- Windows and the program ----------------------------------------------------------------------------------------

TEST_F(Controls, AWindowMayUnloadItselfInItsOwnHandler) {
  auto& modal = programme->Fenetre<ModalPage>();
  EXPECT_EQ(modal.events, Lines{"load"});
  modal.Show();
  modal.field.SetText("state");
  modal.on_button = [&] {
    modal.Unload();
    // Still there until its own handler is through; unloading again is nothing.
    modal.Unload();
    modal.field.SetText("gone");
    EXPECT_TRUE(modal.Unloaded());
    EXPECT_EQ(modal.events, (Lines{"load", "button", "unload"}));
    modal.Show();
    EXPECT_FALSE(modal.Visible());
  };
  Event([&] { modal.button.UserClick(); });
  EXPECT_EQ(programme->Ouverte<ModalPage>(), nullptr);
  EXPECT_EQ(programme->Cherche_Fenetre("ModalPage"), nullptr);
  auto& anew = programme->Fenetre<ModalPage>();
  EXPECT_EQ(anew.field.Text(), "ab");
  EXPECT_EQ(anew.events, Lines{"load"});
}

TEST_F(Controls, FocusGoesBackToTheMainWindow) {
  page.field.SetFocus();
  auto& modal = programme->Fenetre<ModalPage>();
  modal.Show();
  modal.field.SetFocus();
  EXPECT_EQ(programme->Focus(), &modal.field);
  Event([&] { modal.UserClose(); });
  EXPECT_EQ(programme->Focus(), &page.field);
}

TEST_F(Controls, AnEventIsABoundaryWhateverItsCallerTraps) {
  page.combo.AddItem("a");
  page.combo.Click = [] { throw Erreur_Execution(Erreur::Type_Incompatible); };
  bool trapped = false, after = false;
  Event([&] {
    try {
      page.combo.SetListIndex(0);
    } catch (const Erreur_Execution&) {
      trapped = true;
    }
    after = true;
  });
  EXPECT_FALSE(trapped);
  EXPECT_FALSE(after);
  EXPECT_TRUE(programme->Termine_Deja());
  EXPECT_EQ(programme->Erreur_Fatale(), 13);
  EXPECT_EQ(messages.fatal_number, 13);
  EXPECT_EQ(messages.Texts(Box::Kind::Fatal), Lines{"Erreur d'exécution '13' : Type incompatible"_t});
  EXPECT_FALSE(page.Visible());
}

TEST_F(Controls, TheProgramCanEndWhileABoxWaits) {
  messages.OnBox = [&](const Box&) { Event([&] { page.UserClose(); }); };
  bool after = false;
  Event([&] {
    programme->Message("attente");
    after = true;
  });
  EXPECT_FALSE(after);
  EXPECT_TRUE(programme->Termine_Deja());
  EXPECT_EQ(messages.TakeMessages(), Lines{"attente"});
}

TEST_F(Controls, EventsServedInALoopMayEndTheProgram) {
  windows.OnServe = [&] { Event([&] { page.UserClose(); }); };
  int rounds = 0;
  Event([&] {
    for (; rounds < 5; ++rounds) programme->Traite_Evenements();
  });
  EXPECT_EQ(rounds, 0);
  EXPECT_TRUE(programme->Termine_Deja());
}

/// Writes down what a control tells its view.
class Watcher : public ControlView {
 public:
  void Changed(Property property) override { seen.push_back(property); }
  std::vector<Property> seen;
};

TEST_F(Controls, ViewsHearOfChangesOnly) {
  Watcher watcher;
  page.button.SetView(&watcher);
  page.button.SetEnabled(true);
  page.button.SetCaption("Button");
  EXPECT_TRUE(watcher.seen.empty());
  page.button.SetEnabled(false);
  page.button.SetCaption("Other");
  page.button.SetColour(kSaisie);
  page.button.SetVisible(false);
  EXPECT_EQ(watcher.seen,
            (std::vector<Property>{Property::Enabled, Property::Caption, Property::Colour, Property::Visible}));
  page.button.SetView(nullptr);
  page.button.SetEnabled(true);
  EXPECT_EQ(watcher.seen.size(), 4U);
}

}  // namespace
}  // namespace vorelio::tests
