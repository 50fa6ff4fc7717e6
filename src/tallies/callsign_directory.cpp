#include "tallies/callsign_directory.h"

#include "core/text.h"
#include "tallies/directory_window.h"
#include "tallies/tally_file.h"

namespace vorelio::Sous_Programmes {

namespace {

constexpr const char* kFichier = "Nomenclature.txt";

}  // namespace

Fiche_Nomenclature Lit_Nomenclature(std::string_view ligne) {
  return {Rogne(Coupe(ligne, 1, 10)), Rogne(Coupe(ligne, 12, 2)), Rogne(Coupe(ligne, 15, 6))};
}

std::string Debut_Nomenclature(std::string_view indicatif, std::string_view departement) {
  return Complete(indicatif, 11) + Complete(departement, 3);
}

void Cherche_Nomenclature(Programme& programme, std::string_view indicatif, std::string& departement,
                          std::string& locator) {
  departement.clear();
  locator.clear();
  const std::string texte = programme.Disque().ReadAll(programme.Chemin(kFichier));
  for (Lecteur_Champs fiches(texte); !fiches.Fini();) {
    const Fiche_Nomenclature fiche = Lit_Nomenclature(fiches.Suivant());
    if (fiche.indicatif != indicatif) continue;
    departement = fiche.departement;
    if (departement.size() == 1) departement.insert(0, 1, '0');
    locator = fiche.locator;
    return;
  }
}

void Maj_Nomenclature(Programme& programme, std::string_view indicatif, std::string_view departement,
                      std::string_view locator) {
  // Built before anything is written: what doesn't fit its columns then leaves the directory as it is.
  const std::string fiche = Debut_Nomenclature(indicatif, departement).append(locator);
  // Grows with each line that it replaces, so that a second line of a callsign holds its entry twice.
  std::string cumul;
  Disk& disque = programme.Disque();
  const std::string fichier = programme.Chemin(kFichier);
  const std::string temporaire = programme.Chemin("Temporaire5.txt");
  Ecrit_Temporaire(disque, fichier, temporaire, [&](std::string_view ligne) {
    return Lit_Nomenclature(ligne).indicatif == indicatif ? std::optional(cumul += fiche) : std::nullopt;
  });

  // The way back is a reading and a writing, and a new entry rides on it.
  disque.Delete(fichier);
  std::string texte = disque.ReadAll(temporaire);
  if (cumul.empty()) texte.append(fiche).append(kFin_De_Ligne);
  disque.WriteAll(fichier, texte);
  disque.Delete(temporaire);
}

void Charge_Nomenclature(Programme& programme) {
  auto& liste = programme.Fenetre<Fichier_Nomenclature>().Liste_Nomenclature;
  liste.ClearItems();
  programme.saisie.Locator_Repertoire.clear();
  const std::string texte = programme.Disque().ReadAll(programme.Chemin(kFichier));
  for (Lecteur_Champs fiches(texte); !fiches.Fini();) liste.AddItem(fiches.Suivant());
}

void Ecrit_Nomenclature(Programme& programme, const Rows& lignes) {
  std::string texte;
  for (const std::string_view ligne : lignes) texte.append(ligne).append(kFin_De_Ligne);
  programme.Disque().WriteAll(programme.Chemin(kFichier), texte);
}

}  // namespace vorelio::Sous_Programmes
