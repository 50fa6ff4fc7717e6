#pragma once

#include "core/errors.h"
#include "core/programme.h"
#include "core/text.h"
#include "platform/controls.h"

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
    Liste.DblClick = [this] { Vu.SetCaption("double " + Liste.Text()); };
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
    Menu_Message.Click = [this] { this->programme().Message("du menu"); };
  }

  bool Main() const override { return true; }
  void Form_Load() override {
    for (const char* band : {"14 Mhz", "50 Mhz", "144 Mhz"}) Bande.AddItem(band);
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
  ListBox Liste{*this, "Liste", ListBox::Kind::Sorted};
  ListBox Cases{*this, "Cases", ListBox::Kind::Checked};
  Label Vu{*this, "Vu", "rien"};
  Label Clics{*this, "Clics"};
  Button Demander{*this, "Demander", "Demander"};
  Button Ouvrir{*this, "Ouvrir", "Ouvrir"};
  Button Choisir{*this, "Choisir", "Choisir"};
  Button Casser{*this, "Casser", "Casser"};
  Button Attendre{*this, "Attendre", "Attendre"};
  OptionButton Oui{*this, "Oui", "Oui", "choix", true};
  OptionButton Non{*this, "Non", "Non", "choix"};
  Timer Minuteur{*this, "Minuteur", 1000};
  MenuItem Menu_Message{*this, "Menu_Message", "Message"};
};

inline void StartBench(Programme& programme) { programme.Fenetre<Banc>(); }

}  // namespace vorelio::pilot
