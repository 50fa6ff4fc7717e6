#include "maintenance/notes_window.h"

#include "core/text.h"

namespace vorelio {

namespace {

constexpr const char* kFiltre = ".not |*.not";

/// Notes written by an editor of this day's desktops are in UTF-8; those of the program, and any that its character
/// set can't hold, are taken byte by byte.
std::string Texte_De_Notes(const std::string& octets) { return De_Utf8_Exact(octets).value_or(octets); }

}  // namespace

Notes::Notes(Programme& programme) : Form(programme, "Notes", "Bloc notes") {
  Couper.Click = [this] {
    if (Copie_Selection()) Text1.ReplaceSelection({});
  };
  Copier.Click = [this] { Copie_Selection(); };
  Coller.Click = [this] { Text1.ReplaceSelection(programme_.plateforme.clipboard.Text()); };
  Effacer.Click = [this] { Effacer_Click(); };
  Mnu_Charger.Click = [this] { Charge(); };
  Mnu_Enregistrer.Click = [this] { Enregistre(); };
}

void Notes::Form_Load() { Centre(); }

void Notes::Form_Unload() {
  if (programme_.Question("Voulez vous sauvegarder ces notes ?", Guard::MustChoose)) Enregistre();
}

bool Notes::Copie_Selection() {
  if (Text1.SelectionLength() == 0) return false;
  programme_.plateforme.clipboard.SetText(std::string(Coupe(Text1.Text(), Text1.Caret() + 1, Text1.SelectionLength())));
  return true;
}

void Notes::Effacer_Click() {
  programme_.plateforme.clipboard.Clear();
  Text1.Clear();
}

void Notes::Charge() {
  const std::string fichier = programme_.Choisit_Fichier(kFiltre);
  if (fichier.empty()) return;
  const std::string notes = Texte_De_Notes(programme_.Disque().ReadAll(fichier));
  std::string texte, ligne;
  Lecteur_Lignes lignes(notes);
  if (lignes.Fini()) return;
  while (!lignes.Fini()) {
    ligne = lignes.Suivante();
    texte.append(ligne).append(kFin_De_Ligne);
  }
  // The clipboard is where the last line is looked for afterwards.
  programme_.plateforme.clipboard.SetText(ligne);
  // What is selected stays: a file is added to the notes, in front of it.
  Text1.SetCaret(Text1.Caret());
  Text1.ReplaceSelection(texte);
}

void Notes::Enregistre() {
  const std::string fichier = programme_.Choisit_Nom("", kFiltre);
  if (fichier.empty()) return;
  programme_.Disque().WriteAll(fichier, Text1.Text() + std::string(kFin_De_Ligne));
}

}  // namespace vorelio
