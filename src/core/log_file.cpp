#include "core/log_file.h"

#include "core/calendar.h"
#include "core/loading_window.h"
#include "core/log_line.h"
#include "core/text.h"
#include "entry/ddfm.h"

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
void Reprend_Copie(DDFM& ddfm) {
  ddfm.Liste_QSO.ClearItems();
  for (const std::string& element : ddfm.Liste_QSO_Bis.Items()) ddfm.Liste_QSO.AddItem(element);
  ddfm.Liste_QSO_Bis.ClearItems();
}

void Ajoute_Numerotee(ListBox& liste, int numero, std::string_view ligne) {
  liste.AddItem(Colonne_Numero(numero).append(ligne));
}

}  // namespace

void Annonce_Numero(Programme& programme, int numero) {
  programme.Fenetre<DDFM>().Frame4.SetCaption("QSO numéro "_t + std::to_string(numero));
}

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
  auto& ddfm = programme.Fenetre<DDFM>();
  auto& chargement = programme.Fenetre<Chargement>();
  ddfm.Hide();
  chargement.Show();
  Liste_Log(programme, station, ddfm.Liste_QSO);
  programme.contexte.Nb_QSO = ddfm.Liste_QSO.Count();
  Annonce_Numero(programme, programme.contexte.Nb_QSO + 1);
  chargement.Hide();
  ddfm.Show();
}

void Ajoute_Ligne_Log(Programme& programme, std::string_view ligne) {
  programme.Disque().Append(programme.Chemin_Log(programme.contexte.Station_Indicatif),
                            std::string(ligne).append(kFin_De_Ligne));
}

void Remplace_QSO_Log(Programme& programme, std::string_view ancienne, std::string_view nouvelle) {
  auto& ddfm = programme.Fenetre<DDFM>();
  ddfm.Liste_QSO_Bis.ClearItems();
  for (const std::string& element : ddfm.Liste_QSO.Items())
    ddfm.Liste_QSO_Bis.AddItem(element == ancienne ? nouvelle : element);
  Reprend_Copie(ddfm);
  Reecrit_Log(programme, ddfm.Liste_QSO);
}

void Insere_QSO_Log(Programme& programme, std::string_view ligne) {
  auto& ddfm = programme.Fenetre<DDFM>();
  const auto moment = [](std::string_view qso) {
    return Moment_QSO(Champ_Log(qso, champs::Date_A), Champ_Log(qso, champs::Debut_A));
  };

  ddfm.Liste_QSO_Bis.ClearItems();
  bool insere = false;
  int numero = 1;
  for (const std::string& element : ddfm.Liste_QSO.Items()) {
    const std::string_view ancienne = Partie_Log(element);
    // A tie goes to the new contact. Once it has its place, older lines are no longer asked for their date.
    if (!insere && moment(ancienne) >= moment(ligne)) {
      Ajoute_Numerotee(ddfm.Liste_QSO_Bis, numero++, ligne);
      insere = true;
    }
    Ajoute_Numerotee(ddfm.Liste_QSO_Bis, numero++, ancienne);
  }
  if (!insere) Ajoute_Numerotee(ddfm.Liste_QSO_Bis, numero, ligne);
  Reprend_Copie(ddfm);
  Reecrit_Log(programme, ddfm.Liste_QSO);
}

void Efface_Ligne_Log(Programme& programme) {
  auto& ddfm = programme.Fenetre<DDFM>();
  ddfm.Liste_QSO.RemoveItem(ddfm.Liste_QSO.ListIndex());
  ddfm.Liste_QSO_Bis.ClearItems();
  int numero = 1;
  for (const std::string& element : ddfm.Liste_QSO.Items())
    Ajoute_Numerotee(ddfm.Liste_QSO_Bis, numero++, Partie_Log(element));
  Reprend_Copie(ddfm);
  Reecrit_Log(programme, ddfm.Liste_QSO);
}

}  // namespace vorelio::Sous_Programmes
