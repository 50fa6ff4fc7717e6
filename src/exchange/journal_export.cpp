#include "exchange/journal_export.h"

#include "core/text.h"
#include "exchange/adif3_writer.h"
#include "exchange/adif_export.h"
#include "exchange/journal_files.h"
#include "forms/main_window.h"
#include "stations/log_file.h"

namespace vorelio::Sous_Programmes {

namespace {

/// "aaaammjj hhmmss".
std::string Moment_UTC(const Programme& programme) {
  const Instant moment = programme.plateforme.clock.Utc();
  std::string texte = std::to_string(moment.year);
  for (const int nombre : {moment.month, moment.day}) texte += Deux_Chiffres(nombre);
  texte += " ";
  for (const int nombre : {moment.hour, moment.minute, moment.second}) texte += Deux_Chiffres(nombre);
  return texte;
}

}  // namespace

void Exporte_Journal(Programme& programme) {
  if (!Pret_Pour_Un_Journal(programme)) return;
  const std::string& station = programme.contexte.Station_Indicatif;
  const std::string fichier = programme.Choisit_Nom(station + "-complet.adi", "Journaux ADIF|*.adi");
  if (fichier.empty()) return;
  if (fichier == programme.Chemin_Log(station))
    return programme.Message("Ce fichier est le log lui-même : choisissez un autre nom."_t);
  try {
    const std::string log = Texte_Log(programme);
    programme.Disque().WriteAll(fichier, Fichier_ADIF3(log, Contexte_Du_Journal(programme), Moment_UTC(programme)));
    programme.Principale().Dit(
        "Export : " + Compte(static_cast<std::size_t>(Nombre_De_Lignes(log)), "QSO écrit"_t, "QSO écrits"_t) +
        " dans " + Nom_De_Fichier(programme, fichier));
  } catch (const Erreur_Execution& erreur) {
    programme.Message(Phrase_Erreur("L'export n'a pas pu être écrit"_t, erreur));
  }
}

}  // namespace vorelio::Sous_Programmes
