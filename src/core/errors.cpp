#include "core/errors.h"

#include "core/text.h"

namespace vorelio {

namespace {

std::string Libelle(Erreur erreur) {
  switch (erreur) {
    case Erreur::Argument_Invalide: return "Argument ou appel de procédure incorrect"_t;
    case Erreur::Depassement: return "Dépassement de capacité"_t;
    case Erreur::Indice_Hors_Limites: return "L'indice n'appartient pas à la sélection"_t;
    case Erreur::Division_Par_Zero: return "Division par zéro"_t;
    case Erreur::Type_Incompatible: return "Type incompatible"_t;
    case Erreur::Fichier_Introuvable: return "Fichier introuvable"_t;
    case Erreur::Fichier_Deja_Ouvert: return "Fichier déjà ouvert"_t;
    case Erreur::Peripherique: return "Erreur de périphérique"_t;
    case Erreur::Disque_Plein: return "Disque plein"_t;
    case Erreur::Fin_De_Fichier: return "Lecture au-delà de la fin du fichier"_t;
    case Erreur::Peripherique_Absent: return "Périphérique absent"_t;
    case Erreur::Permission_Refusee: return "Permission refusée"_t;
    case Erreur::Disque_Non_Pret: return "Disque non prêt"_t;
    case Erreur::Acces_Chemin: return "Erreur d'accès au chemin ou au fichier"_t;
    case Erreur::Chemin_Introuvable: return "Chemin d'accès introuvable"_t;
    case Erreur::Objet_Absent: return "Objet non défini"_t;
  }
  return "Erreur inconnue"_t;
}

}  // namespace

Erreur_Execution::Erreur_Execution(Erreur erreur, std::string_view precision)
    : erreur_(erreur),
      texte_("Erreur d'exécution '"_t + std::to_string(static_cast<int>(erreur)) + "' : " + Libelle(erreur)) {
  if (!precision.empty()) texte_.append("\r\n\r\n").append(precision);
}

}  // namespace vorelio
