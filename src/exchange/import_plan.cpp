#include "exchange/import_plan.h"

#include <utility>

#include "core/log_line.h"
#include "core/text.h"

namespace vorelio {

namespace {

/// The log line with a card received on that day, or nothing where one is noted already: the state and the date that
/// entering the card by hand gives. A damaged line has no place for them.
std::string Avec_QSL_Recue(std::string_view ligne, std::string_view date) {
  if (ligne.size() != kLargeur_Ligne) return {};
  const std::string_view etat = Lit_Log(ligne, champs::Etat_QSL);
  if (etat == "3" || etat == "4") return {};
  std::string nouvelle(ligne);
  nouvelle[champs::Etat_QSL.colonne - 1] = etat == "2" ? '4' : '3';
  nouvelle.replace(champs::QSLR_A.colonne - 1, champs::QSLR_A.largeur, Complete(date, champs::QSLR_A.largeur));
  return nouvelle;
}

}  // namespace

Plan_Import::Plan_Import(std::string_view log, std::string aujourdhui) : aujourdhui_(std::move(aujourdhui)) {
  for (Lecteur_Lignes lignes(log); !lignes.Fini();) {
    log_.push_back(lignes.Suivante());
    index_.Note(log_.back(), static_cast<long>(log_.size()) - 1);
  }
}

void Plan_Import::Prend(const QSO_Lu& lu) {
  if (!lu.refus.empty()) {
    refus_.push_back({lu.place, lu.indicatif, lu.refus, std::string(lu.texte)});
    return;
  }
  const long pareil = index_.Cherche(lu.ligne);
  const bool deja = pareil != Index_Doubles::kAucun;
  if (deja) ++doubles_;
  if (!deja && lu.coupe) ++coupes_;
  if (!deja) index_.Note(lu.ligne, Index_Doubles::kFichier);
  if (pareil >= 0 && lu.recue) Confirme(static_cast<std::size_t>(pareil), lu);
  fiches_.push_back({lu.moment, deja});
  lignes_ += lu.ligne;
}

void Plan_Import::Confirme(std::size_t indice, const QSO_Lu& lu) {
  std::string nouvelle = Avec_QSL_Recue(log_[indice], lu.date_recue.empty() ? aujourdhui_ : lu.date_recue);
  if (!nouvelle.empty()) confirmees_.emplace(indice, std::move(nouvelle));
}

void Plan_Import::Acheve() {
  log_ = {};
  index_ = {};
}

std::vector<Ligne_A_Placer> Plan_Import::Lignes(bool avec_doubles) const {
  std::vector<Ligne_A_Placer> lignes;
  lignes.reserve(avec_doubles ? fiches_.size() : Nouveaux());
  std::string_view reste = lignes_;
  for (const Fiche& fiche : fiches_) {
    if (avec_doubles || !fiche.deja) lignes.push_back({fiche.moment, reste.substr(0, kLargeur_Ligne)});
    reste.remove_prefix(kLargeur_Ligne);
  }
  Trie_Par_Moment(lignes);
  return lignes;
}

}  // namespace vorelio
