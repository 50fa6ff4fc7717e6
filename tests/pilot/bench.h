#pragma once

#include "core/errors.h"
#include "core/text.h"
#include "forms/controls.h"
#include "forms/programme.h"

/// Small windows that the pilot is tried on.
namespace vorelio::pilot {

/// A modal window that asks for a name.
class Essai : public Form {
 public:
  explicit Essai(Programme& programme) : Form(programme, "Essai", "Un essai") {
    Valider.Click = [this] {
      if (Nom.Text().empty()) return this->programme().Message("Un nom, s'il vous plaît"_t);
      Unload();
    };
  }
  TextField Nom{*this, "Nom"};
  Button Valider{*this, "Valider", "&Valider"};
};

class Banc : public Form {
 public:
  explicit Banc(Programme& programme) : Form(programme, "Banc", "Banc d'été"_t) {
    Appel.KeyPress = [this](int& key) {
      key = Touche_Majuscule(key);
      if (key != kEntree) return;
      key = 0;
      Vu.SetCaption(Appel.Text());
      Appel.SetEnabled(false);
      Bande.SetFocus();
    };
    Bande.Click = [this] { Clics.SetCaption(Clics.Caption() + std::to_string(Bande.ListIndex())); };
    Liste.DblClick = [this] { Vu.SetCaption(std::string("double ").append(Liste.Text())); };
    Demander.Click = [this] {
      const bool yes = this->programme().Question("Vraiment ?");
      Vu.SetCaption(yes ? "oui" : "non");
    };
    Ouvrir.Click = [this] {
      this->programme().Fenetre<Essai>().ShowModal();
      Vu.SetCaption("fermé"_t);
    };
    Choisir.Click = [this] { Vu.SetCaption(this->programme().plateforme.dialogs.Open("", "")); };
    Casser.Click = [] { throw Erreur_Execution(Erreur::Fichier_Introuvable); };
    Attendre.Click = [this] { this->programme().Attend_La_Fin(); };
    Minuteur.Tick = [this] {
      const Instant now = this->programme().plateforme.clock.Local();
      Vu.SetCaption(std::to_string(now.hour) + "h" + std::to_string(now.minute));
    };
    Coche.Click = [this] { Vu.SetCaption(Coche.Checked() ? "coché"_t : "décoché"_t); };
    Menu_Message.Click = [this] { this->programme().Message("du menu"); };
  }

  bool Main() const override { return true; }
  void Form_Load() override {
    for (const char* band : {"14 Mhz", "50 Mhz", "144 Mhz"}) Bande.AddItem(band);
    for (const char* mode : {"SSB", "CW"}) Mode.AddItem(mode);
    for (const char* row : {"b", "a", "c"}) Liste.AddItem(row);
    for (const char* row : {"un", "deux"}) Cases.AddItem(row);
    Lu.SetReadOnly(true);
    Show();
    Appel.SetFocus();
  }

  TextField Appel{*this, "Appel"};
  TextField Lu{*this, "Lu"};
  ControlArray<TextField> Dpt{*this, "Dpt", 0, 2};
  ComboBox Bande{*this, "Bande", ComboBox::Kind::Choice};
  ComboBox Mode{*this, "Mode", ComboBox::Kind::Editable, "SSB"};
  TextField Notes{*this, "Notes", "", true};
  ListBox Liste{*this, "Liste", ListBox::Kind::Sorted};
  ListBox Cases{*this, "Cases", ListBox::Kind::Checked};
  Label Vu{*this, "Vu", "rien"};
  Label Clics{*this, "Clics"};
  Button Demander{*this, "Demander", "Demander"};
  Button Ouvrir{*this, "Ouvrir", "Ouvrir"};
  Button Choisir{*this, "Choisir", "Choisir"};
  Button Casser{*this, "Casser", "Casser"};
  Button Attendre{*this, "Attendre", "Attendre"};
  CheckBox Coche{*this, "Coche", "Coche"};
  OptionButton Oui{*this, "Oui", "Oui", "choix", true};
  OptionButton Non{*this, "Non", "Non", "choix"};
  Timer Minuteur{*this, "Minuteur", 1000};
  MenuItem Menu_Message{*this, "Menu_Message", "Message"};
};

/// What holds in these windows, whichever way they are driven.
inline constexpr const char* kScenariosThatHold[] = {
    "start\ntype Appel \"f6abc\\r\"\nexpect Appel text F6ABC\nexpect Appel enabled no\nexpect Vu caption F6ABC\n"
    "expect Vu text F6ABC\nexpect focus Bande",
    "start\ncaret Appel 0 0\nexpect Appel caret 0\ntype Appel ab\nexpect Appel caret 2\n"
    "caret Appel 1 1\ntype Appel c\nexpect Appel text AC",
    "start\nexpect Banc open\nexpect Banc title \"Banc d'été\"\nclose Banc\nexpect Banc closed\nexpect ended",
    "start\nselect Bande 2\nselect Bande 2\nselect Bande \"14 Mhz\"\nexpect Clics text 220\nexpect Bande index "
    "0\n"
    "expect Bande text \"14 Mhz\"\nexpect Bande count 3",
    "start\nexpect Liste item 0 a\nexpect Liste item 2 contains c\nexpect Liste index -1\n"
    "dblclick Liste 1\nexpect Vu text \"double b\"\nexpect Liste index 1",
    "start\ntick Cases 1\nclick Non\nexpect Non checked yes\nexpect Oui checked no",
    "start\nanswer yes\nclick Demander\nexpect question \"Vraiment ?\"\nexpect Vu caption oui\n"
    "answer cancel\nclick Demander\nexpect question contains rai\nexpect Vu caption non",
    // A read-only field takes no keys, but what is set in it.
    "start\ntype Lu x\nexpect Lu text \"\"\npaste Lu \"été\"\nexpect Lu text \"été\"\npaste Lu \"Ω\"\n"
    "expect Lu text \"été\"",
    "start\ntype Appel \"aΩb\"\nexpect Appel text AB\nexpect Dpt(1) text \"\"\nexpect Banc.Dpt(0) colour window",
    "start\nclick Choisir\nexpect Vu text \"\"\nchoose a.adi\nclick Choisir\nexpect Vu text \"{dir}{/}a.adi\"\n"
    "choose none\nclick Choisir\nexpect Vu text \"\"",
    "clock \"2003-12-31 23:30:00\" +01:00\nstart\ntimer Minuteur\nexpect Vu text 0h30\n"
    "clock \"2004-01-01 10:00:00\" -03:30\ntimer Minuteur\nexpect Vu text 6h30",
    // A field that the user comes back to has its caret where it was.
    "start\ntype Appel ab\nclick Bande\ntype Appel c\nexpect Appel text ABC\ncaret Appel 1 1\nclick Bande\n"
    "type Appel x\nexpect Appel text AXC",
    "start\ntype Notes \"un\\rdeux\"\nexpect Notes text \"un\\r\\ndeux\"\nexpect Notes caret 8\ncaret Notes 4 2\n"
    "type Notes x\nexpect Notes text \"un\\r\\nxux\"\npaste Notes \"à\\r\\nb\"\nexpect Notes text \"à\\r\\nb\"",
    "start\ntype Bande 144\nexpect Bande index 2\ntype Bande 5\nexpect Bande index 1\nexpect Clics text 0021",
    "start\nexpect Mode index -1\ntype Mode cw\nexpect Mode text cw\nselect Mode CW\nexpect Mode index 1\n"
    "type Mode fm\nexpect Mode text fm\npaste Mode RTTY\nexpect Mode text RTTY",
    "start\nclick Coche\nexpect Vu text \"coché\"\nexpect Coche checked yes\nenter Coche\nexpect Coche checked no\n"
    "enter Non\nexpect Non checked yes\ntype Demander x\nanswer ok\nenter Demander\nexpect Vu text oui",
    "start\nmenu Menu_Message\nmenu Menu_Message\nexpect message contains du\nexpect message \"du menu\"",
};

inline void StartBench(Programme& programme) { programme.Fenetre<Banc>(); }

}  // namespace vorelio::pilot
