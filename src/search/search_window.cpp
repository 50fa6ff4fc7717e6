#include "search/search_window.h"

#include "core/errors.h"
#include "core/log_line.h"
#include "core/text.h"
#include "forms/main_window.h"
#include "printing/listing.h"
#include "qsl/state_words.h"
#include "search/found_line.h"
#include "search/search.h"

namespace vorelio {

namespace {

enum Option { kIndicatif = 1, kDate, kDepartement, kLocator, kReference };

constexpr double kTaille_Imprimee = 10;

}  // namespace

Recherche_Indicatif::Recherche_Indicatif(Programme& programme)
    : Form(programme, "Recherche_Indicatif", "Fenetre de recherche"), Option1(*this, "Option1", 1, 5, "", "Option1") {
  const std::string titres[] = {"Indicatif", "Date", "Dpt", "Locator", "Réference"_t};
  for (int option = kIndicatif; option <= kReference; ++option) {
    Option1(option).SetCaption(titres[option - 1]);
    if (option == kIndicatif) Option1(option).SetOn();
    Option1(option).Click = [this, option] { Champ(option).SetFocus(); };
    Champ(option).Click = [this, option] { Option1(option).SetOn(); };
  }
  Relie_Champ(kIndicatif, true, &Recherche_Indicatif::Refuse_Indicatif);
  Relie_Champ(kDate, false, &Recherche_Indicatif::Refuse_Date);
  Relie_Champ(kDepartement, false, &Recherche_Indicatif::Refuse_Departement);
  Relie_Champ(kLocator, true, &Recherche_Indicatif::Refuse_Locator);
  Relie_Champ(kReference, true, &Recherche_Indicatif::Refuse_Reference);
  QSO_Effectues.DblClick = [this] {
    Selectionne_Dans_Log(programme_, QSO_Effectues.Text());
    Unload();
  };
  Imprimer.Click = [this] { Imprimer_Click(); };
  Command1.Click = [this] { Unload(); };
}

void Recherche_Indicatif::Relie_Champ(int option, bool majuscules, bool (Recherche_Indicatif::*refuse)()) {
  Champ(option).KeyPress = [this, majuscules, refuse](int& touche) {
    if (majuscules) touche = Touche_Majuscule(touche);
    if (touche == kEntree && !(this->*refuse)()) Cherche();
  };
}

void Recherche_Indicatif::Form_Load() {
  Centre();
  Show();
  Indica.SetFocus();
}

TextField& Recherche_Indicatif::Champ(int option) {
  TextField* const champs[] = {&Indica, &Data, &Depa, &Loca, &Refa};
  return *champs[option - 1];
}

int Recherche_Indicatif::Option_Choisie() const {
  int option = kIndicatif;
  while (option < kReference && !Option1(option).Set()) ++option;
  return option;
}

// --- Enter in a field -----------------------------------------------------------------------------------------------

bool Recherche_Indicatif::Refuse(const std::string& message, TextField* vide) {
  programme_.Message(message);
  if (vide) vide->Clear();
  return true;
}

bool Recherche_Indicatif::Refuse_Indicatif() {
  if (Indica.Text().size() > 12) return Refuse("Attention 12 caracteres maxi pour l'indicatif");
  return Indica.Text().empty() && Refuse(Message_Texte_Vide(kIndicatif), &Indica);
}

// One separator in its place is enough. An empty field has none.
bool Recherche_Indicatif::Refuse_Date() {
  const std::string& date = Data.Text();
  if (Coupe(date, 3, 1) != "/" && Coupe(date, 6, 1) != "/")
    return Refuse("Attention le format date doit etre JJ/MM/AA");
  return date.size() > 8 && Refuse("Attention 8 caracteres maxi pour la date (format jj/mm/aa)");
}

bool Recherche_Indicatif::Refuse_Departement() {
  if (Depa.Text().size() > 2) return Refuse("Attention 2 caracteres maxi pour le departement");
  return Depa.Text().empty() && Refuse(Message_Texte_Vide(kDepartement), &Depa);
}

// Of an empty field too: it hasn't four characters.
bool Recherche_Indicatif::Refuse_Locator() {
  return Loca.Text().size() != 4 && Refuse("Attention seulement les 4 premiers caracteres du locator", &Loca);
}

// With an empty reference the callsign is cleared, as it always has been.
bool Recherche_Indicatif::Refuse_Reference() {
  if (Refa.Text().size() > 8) return Refuse("Attention 8 caracteres maxi pour la reference");
  return Refa.Text().empty() && Refuse(Message_Texte_Vide(kReference), &Indica);
}

// --- Search ---------------------------------------------------------------------------------------------------------

bool Recherche_Indicatif::Parcourt(int option, std::string& texte, const Preneur& prend) {
  Mot_QSL lettre = Lettre_QSL();
  std::string cherche = Texte_Cherche(texte, option);
  for (const std::string_view element : programme_.Principale().Journal().Items()) {
    // A pasted text can begin with the end of a line.
    if (texte.starts_with(kFin_De_Ligne)) {
      texte.erase(0, kFin_De_Ligne.size());
      cherche = Texte_Cherche(texte, option);
    }
    if (texte.empty()) {
      programme_.Message(Message_Texte_Vide(option));
      return false;
    }
    const std::string& carte = lettre.De(Lit_Liste(element, champs::Etat_QSL));
    if (Repond(element, option, cherche)) prend(element, carte);
  }
  return true;
}

void Recherche_Indicatif::Cherche() {
  QSO_Effectues.ClearItems();
  // The option decides, not the field that Enter was pressed in.
  const int option = Option_Choisie();
  std::string texte = Champ(option).Text();
  const bool complete = Parcourt(option, texte, [this](std::string_view element, const std::string& lettre) {
    QSO_Effectues.AddItem(Ligne_Trouvee(element, lettre));
  });
  if (texte != Champ(option).Text()) Champ(option).SetText(texte);
  if (!complete) return;
  if (QSO_Effectues.Count() == 0) programme_.Message("Pas de QSO trouvé"_t);

  // The reference is neither remembered nor cleared.
  const std::pair<TextField*, std::string*> retenus[] = {
      {&Indica, &Dernier_Indicatif}, {&Data, &Derniere_Date}, {&Depa, &Dernier_Dpt}, {&Loca, &Dernier_Locator}};
  for (const auto& [champ, dernier] : retenus) {
    *dernier = champ->Text();
    champ->Clear();
  }
}

void Recherche_Indicatif::Imprimer_Click() {
  Impression impression(programme_, kTaille_Imprimee, Impression::Gras::Rendu);
  const auto& log = programme_.Principale().Journal().Items();
  const int option = Option_Choisie();
  const Preneur imprime = [&](std::string_view element, const std::string& lettre) {
    impression.Ligne(option == kIndicatif ? Ligne_Courte(element, lettre) : Ligne_Trouvee(element, lettre));
  };
  if (option == kReference) {
    // There is no text to compare with: a reference isn't remembered, and the whole log is printed.
    Mot_QSL lettre = Lettre_QSL();
    for (const std::string_view element : log) imprime(element, lettre.De(Lit_Liste(element, champs::Etat_QSL)));
  } else if (option == kDepartement) {
    // A search by department keeps no text that a printing could start from: there is nothing to print by.
    if (!log.empty()) throw Erreur_Execution(Erreur::Objet_Absent);
  } else {
    std::string texte = option == kIndicatif ? Dernier_Indicatif : option == kDate ? Derniere_Date : Dernier_Locator;
    if (!Parcourt(option, texte, imprime)) return;
  }
  impression.Termine();
}

}  // namespace vorelio
