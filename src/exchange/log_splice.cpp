#include "exchange/log_splice.h"

#include <optional>
#include <utility>

#include "core/calendar.h"
#include "core/errors.h"
#include "core/log_line.h"
#include "core/text.h"
#include "forms/main_window.h"
#include "stations/log_file.h"
#include "stations/log_guard.h"

namespace vorelio {

using namespace Sous_Programmes;

namespace {

/// The status line needn't follow every record.
constexpr std::size_t kPas_Annonce = 500;

void Ajoute_Ligne(std::string& texte, std::string_view ligne) { texte.append(ligne).append(kFin_De_Ligne); }

/// The log on its way into the work file. Every line is asked for its date, also after the place of the block.
class Copie_Log {
 public:
  Copie_Log(std::string_view log, const Genre_Import& genre) : lignes_(log), genre_(genre) {}

  /// Copies the lines before the first one at or after `moment`; false if there is none.
  bool Copie_Avant(const Moment& moment, std::string& vers) {
    while (const auto ligne = Suivante()) {
      if (Moment_Ligne(*ligne) >= moment) {
        attente_ = ligne;
        return true;
      }
      Ajoute_Ligne(vers, *ligne);
    }
    return false;
  }

  void Copie_Reste(std::string& vers) {
    if (attente_) Ajoute_Ligne(vers, *attente_);
    attente_.reset();
    while (const auto ligne = Suivante()) {
      Moment_Ligne(*ligne);
      Ajoute_Ligne(vers, *ligne);
    }
  }

 private:
  std::optional<std::string_view> Suivante() {
    return lignes_.Fini() ? std::nullopt : std::optional(lignes_.Suivante());
  }

  Moment Moment_Ligne(std::string_view ligne) {
    // An empty line keeps the moment of the line before; the first one has none to keep.
    if (!ligne.empty() || !genre_.lignes_vides || !precedent_)
      precedent_ = Moment_Complet(Date_Complete(ligne, genre_.siecle_log), Champ_Log(ligne, champs::Debut_A));
    return *precedent_;
  }

  Lecteur_Lignes lignes_;
  const Genre_Import& genre_;
  std::optional<std::string_view> attente_;
  std::optional<Moment> precedent_;
};

/// The log without its markers, from what the work file holds.
std::string Sans_Reperes(std::string_view lignes) {
  std::string log;
  log.reserve(lignes.size());
  for (Lecteur_Lignes reste(lignes); !reste.Fini();) {
    const std::string_view ligne = reste.Suivante();
    if (!Est_Repere(ligne)) Ajoute_Ligne(log, ligne);
  }
  return log;
}

}  // namespace

std::string Ligne_Repere(std::string_view heures) {
  return std::string("01/01/50  XXXXXX      ").append(heures) + Blancs(164) + "*";
}

bool Est_Repere(std::string_view ligne) { return ligne.starts_with("01/01/50  XXXXXX"); }

Import_Log::Import_Log(Programme& programme, const Genre_Import& genre)
    : programme_(programme), genre_(genre), log_(programme.Chemin_Log(programme.contexte.Station_Indicatif)) {
  Active_Menus(false);
}

Import_Log::~Import_Log() { Active_Menus(true); }

// Events are served during an import: a second one would take the first one's marker away.
void Import_Log::Active_Menus(bool actif) {
  if (auto* principale = programme_.Ouverte<Fenetre_Principale>()) principale->Permet_Imports(actif);
}

bool Import_Log::Choisit_Fichier() {
  programme_.Principale().Dit("");
  Ajoute_Ligne_Log(programme_, Ligne_Repere(genre_.heures_repere));
  fichier_ = programme_.Choisit_Fichier(std::string(genre_.filtre));
  if (fichier_.empty()) programme_.Message("selectionnez un fichier ou quitter");
  return !fichier_.empty();
}

void Import_Log::Insere(const Premier_Moment& premier, const std::vector<std::string_view>& enregistrements,
                        const std::function<Ligne_Importee(std::string_view enregistrement)>& convertit) {
  Disk& disque = programme_.Disque();
  const std::string travail = programme_.Chemin(genre_.temporaire);
  std::string log = disque.ReadAll(log_);
  std::string lignes;
  lignes.reserve(log.size() + enregistrements.size() * (kLargeur_Ligne + kFin_De_Ligne.size()));
  Tenue tenue(programme_, [&] { disque.WriteAll(travail, lignes); });
  tenue.Modifie();
  tenue.Pendant([&] {
    const Moment moment = Moment_Complet(premier.date, premier.heure);
    std::optional<Copie_Log> copie(std::in_place, log, genre_);
    if (!copie->Copie_Avant(moment, lignes)) return;
    const std::size_t place = lignes.size();
    for (const std::string_view enregistrement : enregistrements) {
      Prend(convertit(enregistrement), lignes);
      tenue.Modifie();
      programme_.Traite_Evenements();
    }
    if (tenue.Interrompue()) {
      // A contact may have come into the log meanwhile. The marker too may be gone: then the end is the place.
      const std::string bloc = lignes.substr(place);
      log = disque.ReadAll(log_);
      lignes.clear();
      copie.emplace(log, genre_);
      copie->Copie_Avant(moment, lignes);
      lignes += bloc;
    }
    tenue.Modifie();
    copie->Copie_Reste(lignes);
  });
  lues_ = enregistrements.size();

  garde_ = Remplace_Log(programme_, log_, Sans_Reperes(lignes));
  disque.Delete(travail);
}

/// One more line of the block, once its messages have been read.
void Import_Log::Prend(const Ligne_Importee& lue, std::string& lignes) {
  ++lues_;
  for (const std::string& message : lue.messages) programme_.Message(message);
  if (lue.erreur) throw Erreur_Execution(*lue.erreur, fichier_ + "\r\nEnregistrement n° "_t + std::to_string(lues_));
  Ajoute_Ligne(lignes, lue.ligne);
  if (!Est_Repere(lue.ligne)) ++ajoutees_;
  if (lues_ % kPas_Annonce == 0) Annonce_Avance();
}

void Import_Log::Annonce_Avance() {
  programme_.Principale().Dit(std::string("Import ").append(genre_.nom) + " : enregistrement n° "_t +
                              std::to_string(lues_));
}

void Import_Log::Recharge() {
  Charge_Log(programme_, programme_.contexte.Station_Indicatif);
  auto& principale = programme_.Principale();
  principale.Journal().SetListIndex(principale.Journal().Count() - 1);
  principale.Dit(std::string("Import ").append(genre_.nom) + " : " +
                 Compte(lues_, "enregistrement lu", "enregistrements lus") + ", " +
                 Compte(ajoutees_, "ligne ajoutée"_t, "lignes ajoutées"_t) + (garde_.empty() ? "" : ". " + garde_));
}

}  // namespace vorelio
