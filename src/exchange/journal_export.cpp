#include "exchange/journal_export.h"

#include "core/log_file.h"
#include "core/text.h"
#include "entry/ddfm.h"
#include "exchange/adif_export.h"
#include "exchange/journal_files.h"

namespace vorelio::Sous_Programmes {

void Exporte_Journal(Programme& programme) {
  if (!Pret_Pour_Un_Journal(programme)) return;
  const std::string& station = programme.contexte.Station_Indicatif;
  const std::string fichier = programme.Choisit_Nom(station + "-complet.adi", "Journaux ADIF|*.adi");
  if (fichier.empty()) return;
  if (fichier == programme.Chemin_Log(station))
    return programme.Message("Ce fichier est le log lui-même : choisissez un autre nom."_t);
  try {
    const std::string log = Texte_Log(programme);
    programme.Disque().WriteAll(fichier, Journal_Adif(log, Contexte_Du_Journal(programme), station));
    programme.Fenetre<DDFM>().Etat.SetCaption(
        "Export : " + Compte(static_cast<std::size_t>(Nombre_De_Lignes(log)), "QSO écrit"_t, "QSO écrits"_t) +
        " dans " + Nom_De_Fichier(programme, fichier));
  } catch (const Erreur_Execution& erreur) {
    programme.Message(Phrase_Erreur("L'export n'a pas pu être écrit"_t, erreur));
  }
}

}  // namespace vorelio::Sous_Programmes
