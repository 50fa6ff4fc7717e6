#include "core/calendar.h"

#include <array>
#include <chrono>
#include <string>

#include "core/errors.h"
#include "core/text.h"

namespace vorelio {

namespace {

[[noreturn]] void Refuse(std::string_view texte) { throw Erreur_Execution(Erreur::Type_Incompatible, texte); }

/// The numbers between the separators of a text such as "12/05/2003".
template <std::size_t N>
std::array<int, N> Nombres(std::string_view texte, char separateur) {
  std::array<int, N> nombres{};
  std::string_view reste = Rogne(texte);
  for (std::size_t i = 0; i < N; ++i) {
    const auto fin = i + 1 < N ? reste.find(separateur) : reste.size();
    if (fin == std::string_view::npos || fin == 0 || fin > 4) Refuse(texte);
    for (const char c : reste.substr(0, fin)) {
      if (c < '0' || c > '9') Refuse(texte);
      nombres[i] = nombres[i] * 10 + (c - '0');
    }
    reste.remove_prefix(i + 1 < N ? fin + 1 : fin);
  }
  return nombres;
}

}  // namespace

Moment Moment_QSO(std::string_view date, std::string_view heure) {
  const std::string_view jour_mois = Coupe(date, 1, 6);
  const std::string_view deux_chiffres = Fin(date, 2);
  const double annee_courte = Valeur(deux_chiffres);
  std::string complete(date);
  if (annee_courte >= 50 && annee_courte <= 99) complete = std::string(jour_mois) + "19" + std::string(deux_chiffres);
  if (annee_courte >= 0 && annee_courte <= 49) complete = std::string(jour_mois) + "20" + std::string(deux_chiffres);
  return Moment_Complet(complete, heure);
}

Moment Moment_Complet(std::string_view date, std::string_view heure) {
  const auto [jour, mois, annee] = Nombres<3>(date, '/');
  const std::chrono::year_month_day jour_reel(std::chrono::year(annee), std::chrono::month(static_cast<unsigned>(mois)),
                                              std::chrono::day(static_cast<unsigned>(jour)));
  if (!jour_reel.ok()) Refuse(date);

  // A line without a time stands at the beginning of its day.
  if (Rogne(heure).empty()) return {annee, mois, jour, 0, 0};
  const auto [heures, minutes] = Nombres<2>(heure, ':');
  if (heures > 23 || minutes > 59) Refuse(heure);
  return {annee, mois, jour, heures, minutes};
}

}  // namespace vorelio
