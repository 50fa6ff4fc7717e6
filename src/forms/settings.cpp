#include "forms/settings.h"

#include "core/errors.h"
#include "core/text.h"

namespace vorelio {

namespace {
const std::string kApplication = "DDFM";
const std::string kSection_Commune = "Setup";
}  // namespace

std::string Reglages::Section_Station() const { return kSection_Commune + " " + contexte_.Station_Indicatif; }

std::string Reglages::Commun(std::string_view cle, std::string_view defaut) const {
  return magasin_.Read(kApplication, kSection_Commune, std::string(cle)).value_or(std::string(defaut));
}

void Reglages::Ecrit_Commun(std::string_view cle, std::string_view valeur) const {
  magasin_.Write(kApplication, kSection_Commune, std::string(cle), std::string(valeur));
}

std::string Reglages::Station(std::string_view cle, std::string_view defaut) const {
  return magasin_.Read(kApplication, Section_Station(), std::string(cle)).value_or(std::string(defaut));
}

void Reglages::Ecrit_Station(std::string_view cle, std::string_view valeur) const {
  magasin_.Write(kApplication, Section_Station(), std::string(cle), std::string(valeur));
}

int Reglages::Nombre_Station(std::string_view cle, int defaut) const {
  return Nombre_Entier(Station(cle, std::to_string(defaut)));
}

int Reglages::Nombre_Activites(int defaut) const {
  // A mistyped count must not fill the memory with rows.
  constexpr int kLignes_Au_Plus = 32767;
  const int nombre = Nombre_Station("NB Activite", defaut);
  if (nombre > kLignes_Au_Plus) throw Erreur_Execution(Erreur::Depassement, "NB Activite");
  return nombre;
}

bool Reglages::Booleen_Station(std::string_view cle, bool defaut) const {
  return Booleen(Station(cle, Texte_Booleen(defaut)));
}

}  // namespace vorelio
