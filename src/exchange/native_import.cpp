#include "exchange/native_import.h"

#include "core/log_line.h"
#include "core/text.h"
#include "exchange/log_splice.h"
#include "maintenance/rebuild.h"

namespace vorelio::Sous_Programmes {

namespace {

Premier_Moment Premier_CTF(std::string_view texte) {
  const std::string_view ligne = Lecteur_Lignes(texte).Suivante();
  return {Date_Complete(ligne, Siecle::Depuis_50), std::string(Champ_Log(ligne, champs::Debut_A))};
}

}  // namespace

void Importe_CTF(Programme& programme) {
  static constexpr Genre_Import kCTF{"CTF",          ".ctf (ctf)|*.ctf", "Temporaire7.txt",
                                     "12:00  12:05", Siecle::Depuis_51,  false};
  Import_Log importation(programme, kCTF);
  if (!importation.Choisit_Fichier()) return;
  // The file is in the program's own character set, and nothing in it is looked at but its first date.
  const std::string texte = programme.Disque().ReadAll(importation.Fichier());
  std::vector<std::string_view> lignes;
  for (Lecteur_Lignes lecteur(texte); !lecteur.Fini();) lignes.push_back(lecteur.Suivante());
  importation.Insere(Premier_CTF(texte), lignes, [](std::string_view ligne) {
    return Ligne_Importee{std::string(ligne), {}, {}};
  });
  Refait_Prefixes(programme);
  Refait_Locators(programme);
  Refait_Departements(programme);
  importation.Recharge();
}

}  // namespace vorelio::Sous_Programmes
