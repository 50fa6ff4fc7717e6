#include "maintenance/backup.h"

#include <array>
#include <string>

#include "core/errors.h"
#include "core/text.h"
#include "forms/clock_text.h"
#include "forms/main_window.h"
#include "stations/log_guard.h"
#include "stations/station_files.h"

namespace vorelio::Sous_Programmes {

namespace {

constexpr const char* kSuite_Log_Sauve = ".bak";

/// A file of the station and its copy.
struct Paire {
  std::string fichier;
  std::string copie;
};

std::string Relit_Chemin(Programme& programme) {
  auto& chemin = programme.contexte.Chemin_Sauvegarde;
  chemin = programme.reglages.Station("Chemin Sauvegarde", programme.Chemin_Programme());
  return chemin;
}

/// Log and tallies, in the order of their copying.
std::array<Paire, 4> Fichiers(const Programme& programme, const std::string& base) {
  return {{{programme.Chemin_Log(programme.contexte.Station_Indicatif), base + kSuite_Log_Sauve},
           {programme.Chemin_Station(kSuite_Departement), base + "_Departement.bak"},
           {programme.Chemin_Station(kSuite_Locator), base + "_Locator.bak"},
           {programme.Chemin_Station(kSuite_Prefixe), base + "_Prefixe.bak"}}};
}

}  // namespace

void Sauvegarde_Auto(Programme& programme) {
  Disk& disque = programme.Disque();
  const std::string base = Relit_Chemin(programme);
  for (const auto& [fichier, copie] : Fichiers(programme, base)) disque.Copy(fichier, copie);
  // The activities come back through a window of their own, into the settings.
  disque.Copy(programme.Chemin_Station(kSuite_Activite), base + "_Activite.bak");
  programme.Message("Sauvegarde automatique effectuée"_t);
}

std::string Decrit_Sauvegarde(Programme& programme) {
  Disk& disque = programme.Disque();
  const std::string log =
      programme.reglages.Station("Chemin Sauvegarde", programme.Chemin_Programme()) + kSuite_Log_Sauve;
  try {
    const std::string jour = Date_Longue(disque.Written(log));
    const std::string texte = disque.ReadAll(log);
    int nombre = 0;
    for (Lecteur_Lignes lignes(texte); !lignes.Fini(); lignes.Suivante()) ++nombre;
    return "Sauvegarde du " + jour + " : " + std::to_string(nombre) +
           " QSO ; log avant restauration : " + std::to_string(programme.Principale().Journal().Count()) + " QSO";
  } catch (const Erreur_Execution& erreur) {
    return (erreur.Numero() == static_cast<int>(Erreur::Fichier_Introuvable) ? "Pas de sauvegarde : "
                                                                             : "Sauvegarde illisible : ") +
           log;
  }
}

void Restaure_Sauvegarde(Programme& programme) {
  const std::string base = Relit_Chemin(programme);
  Protege_Log(programme, programme.Chemin_Log(programme.contexte.Station_Indicatif));
  for (const auto& [fichier, copie] : Fichiers(programme, base)) programme.Disque().Copy(copie, fichier);
}

}  // namespace vorelio::Sous_Programmes
