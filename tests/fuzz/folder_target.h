#pragma once

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/log_line.h"
#include "core/text.h"
#include "entry/ddfm.h"
#include "forms/programme.h"
#include "fuzz/memory_disk.h"
#include "platform/file_settings.h"
#include "qsl/multi_qsl_window.h"
#include "qsl/qsl_window.h"
#include "support/contact.h"
#include "support/outside.h"

namespace vorelio::tests {

/// A program's folder in which one file holds whatever it is fed with: the program is started over it, each menu is
/// chosen, each control of the windows that open is used, and contacts are saved, edited, deleted and confirmed. What
/// must hold is checked here, and a breach aborts.
class FolderTarget {
 public:
  /// `file` is one of `Seeds()`.
  explicit FolderTarget(const std::string& file) : file_(Path(file)), base_(Seeds()) {}

  /// Files of a station that has worked a little, by their paths.
  static std::map<std::string, std::string> Seeds() {
    std::map<std::string, std::string> files = {
        {"F9QZX.log", Line("12/05/02", "F6ABC", "06", "14 Mhz") + "\r\n" + Line("12/05/03", "DL1ABC", "", "144 Mhz") +
                          "\r\n" + Line("31/12/49", "TK5AA", "2a", "50 Mhz") + "\r\n"},
        {"F9QZX_Departement.txt",
         "06 00001000000000000 Alpes-Maritimes\r\n2A 00000000010000000 Corse-du-Sud\r\n96 00000000010000000 Corse\r\n"},
        {"F9QZX_Locator.txt", "IN97 00000000\r\nJN33 12340000\r\n"},
        {"F9QZX_Prefixe.txt",
         "TK     00000000010000000  Corse\r\nDL     00000000001000000  Allemagne\r\n"
         "F      00001000000000000  France\r\n"},
        {"F9QZX_Activite.bak", "QSO\r\nDFCF,DCI\r\n"},
        {"Nomenclature.txt", "F6ABC       ,06,JN33BB\r\nDL1ABC      ,  ,JO40AA\r\n"}};
    for (const char* name : {".log", "_Departement.txt", "_Locator.txt", "_Prefixe.txt"}) {
      const std::string suffix = name;
      files["FXXXX" + suffix] = suffix == ".log" ? "" : files["F9QZX" + suffix];
      files["F9QZX" + (suffix == ".log" ? "" : suffix.substr(0, suffix.size() - 4)) + ".bak"] = files["F9QZX" + suffix];
    }
    MemoryDisk disk;
    FileSettings settings(disk, "ini");
    SeedStationSettings(settings, kFolder, '/', "F9QZX", "JN33BB");
    files["Vorelio.ini"] = disk.files["ini"];
    return files;
  }

  /// Gives the number of the first error that has ended a deed, 0 if none has.
  int Run(std::string_view bytes) {
    bytes_ = bytes;
    first_error_ = 0;
    programme_.reset();
    Deed([] {});
    for (const std::string& menu : Menus()) {
      Deed([&] { Click(*Main().Find(menu)); });
      UseWindows();
    }
    Save(true);
    Save(false);
    Review();
    Cards();
    programme_.reset();
    return first_error_;
  }

 private:
  static constexpr const char* kFolder = "/station";

  static std::string Path(const std::string& name) { return std::string(kFolder) + "/" + name; }

  static std::string Line(const char* date, const char* call, const char* department, const char* band) {
    return Construit_Ligne(Contact({date, call, "12:00", "12:05", department, "JN33BB", band, "SSB", "59", "59"}));
  }

  static void Require(bool held, const char* what) {
    if (held) return;
    std::fprintf(stderr, "folder: %s\n", what);
    std::abort();
  }

  DDFM& Main() { return *programme_->Ouverte<DDFM>(); }
  std::string& Log() { return disk_.files[Path("F9QZX.log")]; }

  static std::vector<std::string> Menus() {
    std::vector<std::string> names;
    Outside outside;
    MemoryDisk disk;
    SilentWindows windows;
    Programme programme(outside.Join(windows, disk, kFolder));
    const DDFM main(programme);
    for (const Control* control : main.Controls())
      if (control->Name().starts_with("Mnu_") && control->Name() != "Mnu_Quitter") names.push_back(control->Name());
    return names;
  }

  /// Starts the program where it has ended, over the files as they were at first.
  void Start() {
    if (programme_ && !programme_->Termine_Deja()) return;
    programme_.reset();
    disk_.files.clear();
    for (const auto& [name, content] : base_) disk_.files[Path(name)] = content;
    disk_.files[file_] = bytes_;
    windows_.OnModal = [this](const Form& form) { UseWindow(std::string(form.Name())); };
    programme_ = std::make_unique<Programme>(outside_.devices.Join(settings_, outside_.messages, outside_.dialogs,
                                                                   outside_.clock, windows_, disk_, kFolder));
    programme_->Recoit([&] { programme_->Fenetre<DDFM>(); });
    Judge();
  }

  void Judge() {
    static const std::set<int> told = {0, 5, 6, 9, 11, 13, 53, 62, 76};
    const int error = programme_->Erreur_Fatale();
    Require(told.count(error) > 0, "an error that no file may end in");
    if (first_error_ == 0) first_error_ = error;
    windows_.events.clear();
    outside_.messages.Forget();
    outside_.messages.answers.clear();
  }

  /// Runs something in a program that lives; false if it has ended there, or couldn't be started.
  template <typename Action>
  bool Deed(Action action) {
    Start();
    if (programme_->Termine_Deja() || !programme_->Ouverte<DDFM>()) return false;
    outside_.messages.answers.assign(8, true);
    programme_->Recoit(action);
    Judge();
    return !programme_->Termine_Deja();
  }

  static void Click(Control& control) {
    if (auto* menu = dynamic_cast<MenuItem*>(&control)) menu->UserClick();
    if (auto* button = dynamic_cast<Button*>(&control)) button->UserClick();
    if (auto* option = dynamic_cast<OptionButton*>(&control)) option->UserClick();
    if (auto* field = dynamic_cast<TextField*>(&control)) {
      field->UserKey('1');
      field->UserKey(kEntree);
    }
    if (auto* box = dynamic_cast<ComboBox*>(&control)) box->UserSelect(box->Count() / 2);
    if (auto* list = dynamic_cast<ListBox*>(&control)) {
      list->UserTick(0);
      list->UserDblClick(list->Count() - 1);
      list->UserKey(kEntree);
    }
  }

  /// The window of that name, while it is open in a program that lives.
  Form* Open(const std::string& name) const {
    return programme_->Termine_Deja() ? nullptr : programme_->Cherche_Fenetre(name);
  }

  /// Every control of a window once. Any of them may close it.
  void UseWindow(const std::string& name) {
    for (std::size_t i = 0; i < 40; ++i) {
      Form* form = Open(name);
      if (!form || i >= form->Controls().size()) return;
      programme_->Recoit([&] { Click(*form->Controls()[i]); });
    }
  }

  void UseWindows() {
    if (!programme_) return;
    for (int turn = 0; turn < 3; ++turn) {
      std::vector<std::string> names;
      for (const Form* form : programme_->Fenetres())
        if (!form->Main()) names.push_back(form->Name());
      for (const std::string& name : names) {
        UseWindow(name);
        if (Form* form = Open(name)) programme_->Recoit([&] { form->UserClose(); });
      }
    }
    Judge();
  }

  /// What a save or an edit keeps of the lines. Zeros at the end of the log are no line: a save cuts them off.
  static std::vector<std::string> Lines(std::string_view log) {
    std::vector<std::string> lines;
    for (Lecteur_Lignes reader(log.substr(0, log.find_last_not_of('\0') + 1)); !reader.Fini();)
      lines.emplace_back(reader.Suivante().substr(0, kLargeur_Ligne));
    return lines;
  }

  static bool Within(const std::vector<std::string>& few, const std::vector<std::string>& many) {
    auto next = few.begin();
    for (const std::string& line : many)
      if (next != few.end() && *next == line) ++next;
    return next == few.end();
  }

  static void Type(TextField& field, std::string_view text) {
    for (const char c : text) field.UserKey(static_cast<unsigned char>(c));
    field.UserKey(kEntree);
  }

  void Save(bool automatic) {
    programme_.reset();
    const bool entered = Deed([&] {
      (automatic ? Main().Mnu_Auto_Oui : Main().Mnu_Auto_Non).UserClick();
      Main().Bande_A.UserKey(kEntree);
      Type(Main().Indicatif_A, "f6abd");
      Type(Main().Depart_A, "06");
      Type(Main().Locator_A, "jn33bb");
      Main().Mode_A.UserKey(kEntree);
      Main().Activ_A.UserKey(kEntree);
      Type(Main().Date_A, "13/05/03");
      Type(Main().Debut_A, "10:00");
    });
    if (!entered || programme_->contexte.Station_Indicatif != "F9QZX") return;
    // Zeros at the end are no line: a save cuts them off.
    const auto before = Lines(Log().substr(0, Log().find_last_not_of('\0') + 1));
    const bool saved = Deed([&] {
      Main().Enregistrer.SetEnabled(true);
      Main().Enregistrer.UserClick();
    });
    const auto after = Lines(Log());
    Require(Within(before, after), "a save has lost lines of the log");
    Require(!saved || after.size() <= before.size() + 1, "a save of many contacts");
  }

  void Review() {
    programme_.reset();
    if (!Deed([&] { Main().Liste_QSO.UserDblClick(Main().Liste_QSO.Count() / 2); })) return;
    if (!Deed([&] { Main().Editer.UserClick(); }) || programme_->contexte.Station_Indicatif != "F9QZX") return;
    const std::size_t lines = Lines(Log()).size();
    if (!Deed([&] { Main().Enregistrer.UserClick(); })) return;
    Require(Lines(Log()).size() == lines, "an edit has changed the number of contacts");
    if (!Deed([&] { Main().Liste_QSO.UserDblClick(0); })) return;
    if (!Deed([&] { Main().Effacer.UserClick(); })) return;
    Require(Lines(Log()).size() + 1 >= lines, "a deletion of many contacts");
  }

  void Cards() {
    programme_.reset();
    const bool opened = Deed([&] {
      Main().Liste_QSO.UserSelect(0);
      Main().Gestion_QSL.UserClick();
      auto& batch = programme_->Fenetre<Multi_QSL>();
      batch.Recherche.UserClick();
      for (int i = 0; i < batch.Liste_QSO.Count(); ++i) batch.Liste_QSO.UserTick(i);
    });
    if (!opened || programme_->contexte.Station_Indicatif != "F9QZX") return;
    const std::size_t lines = Lines(Log()).size();
    Deed([&] { programme_->Fenetre<Multi_QSL>().Enregistre.UserClick(); });
    Require(Lines(Log()).size() == lines, "a batch of cards has changed the number of contacts");
  }

  const std::string file_;
  const std::map<std::string, std::string> base_;
  std::string bytes_;
  int first_error_ = 0;
  Outside outside_;
  SilentWindows windows_;
  MemoryDisk disk_;
  FileSettings settings_{disk_, Path("Vorelio.ini")};
  std::unique_ptr<Programme> programme_;
};

}  // namespace vorelio::tests
