#include "core/log_file.h"

#include "core/calendar.h"
#include "core/loading_window.h"
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
  programme.Disque().WriteAll(programme.Chemin_Log(programme.contexte.Station_Indicatif), texte);
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
  Liste_Log(programme, station, principale.Journal());
  programme.contexte.Nb_QSO = principale.Journal().Count();
  principale.Annonce_Numero(programme.contexte.Nb_QSO + 1);
  chargement.Hide();
  principale.Show();
}

void Ajoute_Ligne_Log(Programme& programme, std::string_view ligne) {
  programme.Disque().Append(programme.Chemin_Log(programme.contexte.Station_Indicatif),
                            std::string(ligne).append(kFin_De_Ligne));
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

std::string Garde_Log(Programme& programme) {
  const Instant moment = programme.plateforme.clock.Local();
  std::string nom = programme.contexte.Station_Indicatif + ".log.garde-" + std::to_string(moment.year);
  nom += Deux_Chiffres(moment.month) + Deux_Chiffres(moment.day) + "-";
  nom += Deux_Chiffres(moment.hour) + Deux_Chiffres(moment.minute) + Deux_Chiffres(moment.second);
  programme.Disque().Copy(programme.Chemin_Log(programme.contexte.Station_Indicatif), programme.Chemin(nom));
  return nom;
}

void Remplace_Log(Programme& programme, std::string_view texte) {
  programme.Disque().WriteAll(programme.Chemin_Log(programme.contexte.Station_Indicatif), texte);
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
