#include "exchange/edi_import.h"

#include "core/foreign_text.h"
#include "exchange/edi_record.h"
#include "exchange/log_splice.h"

namespace vorelio::Sous_Programmes {

void Importe_EDI(Programme& programme) {
  // Here the marker is of 1950, so a file that is newer than the whole log finds no place in it.
  static constexpr Genre_Import kEDI{"EDI",          ".edi (edi)|*.edi", "Temporaire7.txt",
                                     "00:00  00:05", Siecle::Depuis_50,  false};
  Import_Log importation(programme, kEDI);
  if (!importation.Choisit_Fichier()) return;
  const std::string texte = Texte_Recu(programme.Disque().ReadAll(importation.Fichier()));
  const Fichier_EDI fichier = Lit_Fichier_EDI(texte);
  importation.Insere(fichier.premier, fichier.enregistrements,
                     [&](std::string_view enregistrement) { return Ligne_EDI(enregistrement, fichier.bande); });
  importation.Recharge();
}

}  // namespace vorelio::Sous_Programmes
