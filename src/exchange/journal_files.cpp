#include "exchange/journal_files.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/text.h"
#include "forms/main_window.h"
#include "stations/activities.h"

namespace vorelio {

Contexte_Journal Contexte_Du_Journal(Programme& programme) {
  std::vector<std::string> activites = Sous_Programmes::Noms_Activites(programme, "");
  activites.insert(activites.begin(), "QSO");
  return {programme.Principale().Indicatif_Affiche(), programme.contexte.Station_Locator, std::move(activites), {}};
}

bool Pret_Pour_Un_Journal(Programme& programme) {
  if (programme.contexte.Station_Indicatif == kStation_Modele) {
    programme.Message(
        "Donnez d'abord l'indicatif de votre station : menu Fichier, Indicatif et locator de la station.");
    return false;
  }
  if (programme.saisie.QSO_Edition) {
    programme.Message("Validez ou annulez d'abord la correction du QSO.");
    return false;
  }
  return true;
}

std::string Nom_De_Fichier(const Programme& programme, std::string_view chemin) {
  return std::string(chemin.substr(chemin.find_last_of(programme.plateforme.separator) + 1));
}

std::string Nom_Fichier_Refuses(const Programme& programme, std::string_view fichier) {
  const std::string nom = Nom_De_Fichier(programme, fichier);
  const std::string_view fin = std::string_view(nom).substr(std::min(nom.find_last_of('.'), nom.size()));
  return std::string(fichier.substr(0, fichier.size() - fin.size())).append("-refuses").append(fin);
}

std::string Phrase_Erreur(const std::string& phrase, const Erreur_Execution& erreur) {
  // The number is for whoever mends the program; what it was about, the path, comes behind.
  const std::string& texte = erreur.Texte();
  std::string raison = texte.substr(texte.find(" : ") + 3);
  if (erreur.Genre() == Erreur::Acces_Chemin)
    raison.replace(0, raison.find("\r\n"), "Ce n'est pas un fichier ordinaire"_t);
  return phrase + ".\r\n" + raison;
}

}  // namespace vorelio
