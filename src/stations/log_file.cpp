#include "stations/log_file.h"

#include <algorithm>

#include "core/calendar.h"
#include "core/log_line.h"
#include "core/text.h"
#include "forms/main_window.h"
#include "stations/loading_window.h"
#include "stations/log_guard.h"

namespace vorelio::Sous_Programmes {

namespace {

/// Rewrites the file of the station from the list. The log has no temporary copy: it is prepared in memory and written
/// in one go.
void Reecrit_Log(Programme& programme, const ListBox& liste) {
  std::string texte;
  texte.reserve(static_cast<std::size_t>(liste.Count()) * (kLargeur_Ligne + kFin_De_Ligne.size()));
  for (const std::string_view element : liste.Items()) texte.append(Partie_Log(element)).append(kFin_De_Ligne);
  Remplace_Log(programme, programme.Chemin_Log(programme.contexte.Station_Indicatif), texte);
}

/// The list has room for the whole log at once: it doesn't grow line by line.
void Reserve_Liste(ListBox& liste, std::string_view texte) {
  const std::size_t lignes = texte.size() / (kLargeur_Ligne + kFin_De_Ligne.size()) + 1;
  liste.Reserve(lignes, texte.size() + lignes * kColonnes_Numero);
}

/// Numbers the rows by their place; those from `place` on leave one number free. From the end, where a number that the
/// column can't hold is met before anything has changed.
void Renumerote(ListBox& liste, int place) {
  for (int i = liste.Count() - 1; i >= 0; --i) {
    const std::string colonne = Colonne_Numero(i < place ? i + 1 : i + 2);
    if (!liste.Item(i).starts_with(colonne)) liste.WriteOver(i, colonne);
  }
}

/// The first row at or after the moment of `ligne`, the count if there is none. Older lines are no longer asked for
/// their date once the place is found.
int Place_Par_Date(const ListBox& liste, std::string_view ligne) {
  const auto moment_de = [](std::string_view qso) {
    return Moment_QSO(Champ_Log(qso, champs::Date_A), Champ_Log(qso, champs::Debut_A));
  };
  if (liste.Count() == 0) return 0;
  const Moment moment = moment_de(ligne);
  const auto place = std::find_if(liste.Items().begin(), liste.Items().end(),
                                  [&](std::string_view element) { return moment_de(Partie_Log(element)) >= moment; });
  return static_cast<int>(place - liste.Items().begin());
}

/// The log into the main window's list, which from then on stands for the file.
void Lit_Liste_QSO(Programme& programme, const std::string& log, std::string_view station) {
  auto& contexte = programme.contexte;
  Oublie_Log(programme, log);
  contexte.Log_Non_Lu = log;
  // As it stood before it was read: what comes in meanwhile isn't in the list.
  const auto empreinte = programme.Disque().Stamp(log);
  Liste_Log(programme, station, programme.Principale().Journal());
  if (empreinte) contexte.Empreintes_Logs[log] = *empreinte;
  contexte.Log_Non_Lu.clear();
}

}  // namespace

std::string Texte_Log(Programme& programme) {
  return programme.Disque().ReadAll(programme.Chemin_Log(programme.contexte.Station_Indicatif));
}

void Liste_Log(Programme& programme, std::string_view station, ListBox& liste) {
  liste.ClearItems();
  const std::string texte = programme.Disque().ReadAll(programme.Chemin_Log(station));
  Reserve_Liste(liste, texte);
  std::string element;
  int numero = 1;
  for (Lecteur_Lignes lignes(texte); !lignes.Fini(); ++numero) {
    element.assign(Colonne_Numero(numero)).append(lignes.Suivante());
    liste.AddItem(element);
    programme.Traite_Evenements();
  }
}

void Charge_Log(Programme& programme, std::string_view station) {
  auto& principale = programme.Principale();
  auto& chargement = programme.Fenetre<Chargement>();
  principale.Hide();
  chargement.Show();
  Lit_Liste_QSO(programme, programme.Chemin_Log(station), station);
  programme.contexte.Nb_QSO = principale.Journal().Count();
  principale.Annonce_Numero(programme.contexte.Nb_QSO + 1);
  chargement.Hide();
  principale.Show();
}

void Ajoute_Ligne_Log(Programme& programme, std::string_view ligne) {
  const std::string log = programme.Chemin_Log(programme.contexte.Station_Indicatif);
  // What others have added since stays unknown: the list hasn't got it.
  const bool connu = Log_Connu(programme, log);
  programme.Disque().AppendLine(log, ligne);
  if (connu) Note_Log(programme, log);
}

void Remplace_QSO_Log(Programme& programme, std::string_view ancienne, std::string_view nouvelle) {
  ListBox& liste = programme.Principale().Journal();
  const auto place = std::find(liste.Items().begin(), liste.Items().end(), ancienne);
  if (place != liste.Items().end()) {
    // It may look into the list.
    const std::string element(nouvelle);
    liste.RemoveItem(static_cast<int>(place - liste.Items().begin()));
    liste.AddItem(element);
  }
  Reecrit_Log(programme, liste);
}

void Insere_QSO_Log(Programme& programme, std::string_view ligne) {
  // The list of a log that couldn't be read is empty: the contact must not be all that is left of it.
  const std::string log = programme.Chemin_Log(programme.contexte.Station_Indicatif);
  if (programme.contexte.Log_Non_Lu == log) Lit_Liste_QSO(programme, log, programme.contexte.Station_Indicatif);
  ListBox& liste = programme.Principale().Journal();
  // A tie goes to the new contact.
  const int place = Place_Par_Date(liste, ligne);
  const std::string element = Colonne_Numero(place + 1).append(ligne);
  Renumerote(liste, place);
  liste.AddItem(element);
  Reecrit_Log(programme, liste);
}

void Efface_Ligne_Log(Programme& programme) {
  ListBox& liste = programme.Principale().Journal();
  liste.RemoveItem(liste.ListIndex());
  Renumerote(liste, liste.Count());
  Reecrit_Log(programme, liste);
}

}  // namespace vorelio::Sous_Programmes
