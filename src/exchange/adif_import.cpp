#include "exchange/adif_import.h"

#include "core/foreign_text.h"
#include "exchange/adif_record.h"
#include "exchange/log_splice.h"
#include "maintenance/rebuild.h"

namespace vorelio::Sous_Programmes {

void Importe_ADIF(Programme& programme) {
  // The marker is of 2050 for this import, so there is a place in the log for every file that begins before.
  static constexpr Genre_Import kADIF{"ADIF",         ".adi (adi)|*.adi", "Temporaire8.txt",
                                      "12:00  12:05", Siecle::Depuis_51,  true};
  Import_Log importation(programme, kADIF);
  if (!importation.Choisit_Fichier()) return;
  const std::string texte = Texte_Recu(programme.Disque().ReadAll(importation.Fichier()));
  char etat_QSL = kEtat_QSL_Inconnu;
  importation.Insere(Premier_ADIF(texte), Enregistrements_ADIF(texte),
                     [&](std::string_view enregistrement) { return Ligne_ADIF(enregistrement, etat_QSL); });
  Refait_Prefixes(programme);
  Refait_Locators(programme);
  Refait_Departements(programme);
  importation.Recharge();
}

}  // namespace vorelio::Sous_Programmes
