#include "exchange/log_merge.h"

#include <algorithm>

#include "core/errors.h"
#include "core/log_line.h"
#include "core/text.h"

namespace vorelio {

namespace {

constexpr int kAucune = -1;

/// The moments as they are to be compared: they never go back. The longest run of lines in order gives them; a line
/// astray has that of the line before it.
std::vector<Moment> Moments_En_Ordre(std::string_view log) {
  std::vector<std::optional<Moment>> moments;
  std::vector<int> precedente;  // Of each line: the one before it in the longest run that ends with it.
  std::vector<int> dernieres;   // For each length: the line that such a run ends with, the earliest there is.
  for (Lecteur_Lignes lignes(log); !lignes.Fini();) {
    const int indice = static_cast<int>(moments.size());
    moments.push_back(Moment_Ligne(lignes.Suivante()));
    precedente.push_back(kAucune);
    if (!moments.back()) continue;
    const auto place =
        std::upper_bound(dernieres.begin(), dernieres.end(), *moments.back(),
                         [&](const Moment& m, int i) { return m < *moments[static_cast<std::size_t>(i)]; });
    if (place != dernieres.begin()) precedente.back() = *(place - 1);
    if (place == dernieres.end())
      dernieres.push_back(indice);
    else
      *place = indice;
  }

  std::vector<Moment> en_ordre(moments.size());
  std::vector<bool> suivie(moments.size());
  for (int i = dernieres.empty() ? kAucune : dernieres.back(); i != kAucune;
       i = precedente[static_cast<std::size_t>(i)])
    suivie[static_cast<std::size_t>(i)] = true;
  for (std::size_t i = 0; i < moments.size(); ++i)
    en_ordre[i] = suivie[i] ? *moments[i] : i > 0 ? en_ordre[i - 1] : Moment{};
  return en_ordre;
}

void Ajoute_Ligne(std::string& texte, std::string_view ligne) { texte.append(ligne).append(kFin_De_Ligne); }

}  // namespace

std::optional<Moment> Moment_Ligne(std::string_view ligne) {
  try {
    return Moment_QSO(Champ_Log(ligne, champs::Date_A), Champ_Log(ligne, champs::Debut_A));
  } catch (const Erreur_Execution&) {
    return std::nullopt;
  }
}

void Trie_Par_Moment(std::vector<Ligne_A_Placer>& lignes) {
  std::stable_sort(lignes.begin(), lignes.end(),
                   [](const Ligne_A_Placer& une, const Ligne_A_Placer& autre) { return une.moment < autre.moment; });
}

std::string Log_Fusionne(std::string_view log, const std::vector<Ligne_A_Placer>& nouvelles,
                         const Lignes_Changees& changees) {
  const std::vector<Moment> moments = Moments_En_Ordre(log);
  std::string texte;
  texte.reserve(log.size() + nouvelles.size() * (kLargeur_Ligne + kFin_De_Ligne.size()));
  auto nouvelle = nouvelles.begin();
  Lecteur_Lignes lignes(log);
  for (std::size_t i = 0; i < moments.size(); ++i) {
    for (; nouvelle != nouvelles.end() && nouvelle->moment < moments[i]; ++nouvelle)
      Ajoute_Ligne(texte, nouvelle->ligne);
    const std::string_view ligne = lignes.Suivante();
    const auto changee = changees.find(i);
    Ajoute_Ligne(texte, changee == changees.end() ? ligne : changee->second);
  }
  for (; nouvelle != nouvelles.end(); ++nouvelle) Ajoute_Ligne(texte, nouvelle->ligne);
  return texte;
}

}  // namespace vorelio
