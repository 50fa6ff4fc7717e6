#include "exchange/import_plan.h"

#include <utility>

#include "core/log_line.h"
#include "core/text.h"
#include "exchange/duplicates.h"

namespace vorelio {

namespace {

bool Carte_Recue(std::string_view ligne) {
  const std::string_view etat = Champ_Log(ligne, champs::Etat_QSL);
  return etat == "3" || etat == "4";
}

/// The log line with a card received on that day: the state and the date that entering the card by hand gives.
std::string Avec_Carte_Recue(std::string_view ligne, std::string_view date) {
  std::string nouvelle(ligne);
  char& etat = nouvelle[champs::Etat_QSL.colonne - 1];
  etat = etat == '2' ? '4' : '3';
  return nouvelle.replace(champs::QSLR_A.colonne - 1, champs::QSLR_A.largeur, Complete(date, champs::QSLR_A.largeur));
}

}  // namespace

Plan_Import::Plan_Import(std::vector<QSO_Lu> qso, std::string_view log, std::string_view aujourdhui) {
  std::vector<std::string_view> connues;
  for (Lecteur_Lignes lignes(log); !lignes.Fini();) connues.push_back(lignes.Suivante());
  const std::size_t du_log = connues.size();
  Index_Doubles index;
  index.Reserve(du_log + qso.size());
  for (const std::string_view ligne : connues) index.Ajoute(ligne);

  fiches_.reserve(qso.size());
  Moment moment;
  for (QSO_Lu& lu : qso) {
    const auto pareil = index.Cherche(lu.ligne);
    // A line without a real date stays behind the one that it follows in the file.
    moment = Moment_Ligne(lu.ligne).value_or(moment);
    const std::string& ligne = fiches_.emplace_back(Fiche{std::move(lu.ligne), moment, pareil.has_value()}).ligne;
    if (!pareil) {
      index.Ajoute(ligne);
      if (lu.coupe) ++coupes_;
      continue;
    }
    ++doubles_;
    // A damaged line has no place for the card.
    if (*pareil >= du_log || connues[*pareil].size() != kLargeur_Ligne) continue;
    if (!Carte_Recue(ligne) || Carte_Recue(connues[*pareil])) continue;
    const std::string_view date = Lit_Log(ligne, champs::QSLR_A);
    confirmees_.emplace(*pareil, Avec_Carte_Recue(connues[*pareil], date.empty() ? aujourdhui : date));
  }
}

std::vector<Ligne_A_Placer> Plan_Import::Lignes(bool avec_doubles) const {
  std::vector<Ligne_A_Placer> lignes;
  lignes.reserve(avec_doubles ? fiches_.size() : Nouveaux());
  for (const Fiche& fiche : fiches_)
    if (avec_doubles || !fiche.deja) lignes.push_back({fiche.moment, fiche.ligne});
  Trie_Par_Moment(lignes);
  return lignes;
}

}  // namespace vorelio
