#include "core/log_file.h"

#include "core/calendar.h"
#include "core/loading_window.h"
#include "core/log_guard.h"
#include "core/log_line.h"
#include "core/main_window.h"
#include "core/text.h"

namespace vorelio::Sous_Programmes {

namespace {

/// Rewrites the file of the station from the list. The log has no temporary copy: it is prepared in memory and written
/// in one go.
void Reecrit_Log(Programme& programme, const ListBox& liste) {
  std::string texte;
  texte.reserve(static_cast<std::size_t>(liste.Count()) * (kLargeur_Ligne + kFin_De_Ligne.size()));
  for (const std::string& element : liste.Items()) texte.append(Partie_Log(element)).append(kFin_De_Ligne);
  Remplace_Log(programme, programme.Chemin_Log(programme.contexte.Station_Indicatif), texte);
}

/// Moves the rows of the working copy into the list.
void Reprend_Copie(Fenetre_Principale& principale) {
  principale.Journal().ClearItems();
  for (const std::string& element : principale.Copie_Journal().Items()) principale.Journal().AddItem(element);
  principale.Copie_Journal().ClearItems();
}

void Ajoute_Numerotee(ListBox& liste, int numero, std::string_view ligne) {
  liste.AddItem(Colonne_Numero(numero).append(ligne));
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
  int numero = 1;
  for (Lecteur_Lignes lignes(texte); !lignes.Fini(); ++numero) {
    Ajoute_Numerotee(liste, numero, lignes.Suivante());
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
  auto& principale = programme.Principale();
  principale.Copie_Journal().ClearItems();
  for (const std::string& element : principale.Journal().Items())
    principale.Copie_Journal().AddItem(element == ancienne ? nouvelle : element);
  Reprend_Copie(principale);
  Reecrit_Log(programme, principale.Journal());
}

void Insere_QSO_Log(Programme& programme, std::string_view ligne) {
  auto& principale = programme.Principale();
  // The list of a log that couldn't be read is empty: the contact must not be all that is left of it.
  const std::string log = programme.Chemin_Log(programme.contexte.Station_Indicatif);
  if (programme.contexte.Log_Non_Lu == log) Lit_Liste_QSO(programme, log, programme.contexte.Station_Indicatif);
  const auto moment = [](std::string_view qso) {
    return Moment_QSO(Champ_Log(qso, champs::Date_A), Champ_Log(qso, champs::Debut_A));
  };

  principale.Copie_Journal().ClearItems();
  bool insere = false;
  int numero = 1;
  for (const std::string& element : principale.Journal().Items()) {
    const std::string_view ancienne = Partie_Log(element);
    // A tie goes to the new contact. Once it has its place, older lines are no longer asked for their date.
    if (!insere && moment(ancienne) >= moment(ligne)) {
      Ajoute_Numerotee(principale.Copie_Journal(), numero++, ligne);
      insere = true;
    }
    Ajoute_Numerotee(principale.Copie_Journal(), numero++, ancienne);
  }
  if (!insere) Ajoute_Numerotee(principale.Copie_Journal(), numero, ligne);
  Reprend_Copie(principale);
  Reecrit_Log(programme, principale.Journal());
}

void Efface_Ligne_Log(Programme& programme) {
  auto& principale = programme.Principale();
  principale.Journal().RemoveItem(principale.Journal().ListIndex());
  principale.Copie_Journal().ClearItems();
  int numero = 1;
  for (const std::string& element : principale.Journal().Items())
    Ajoute_Numerotee(principale.Copie_Journal(), numero++, Partie_Log(element));
  Reprend_Copie(principale);
  Reecrit_Log(programme, principale.Journal());
}

}  // namespace vorelio::Sous_Programmes
