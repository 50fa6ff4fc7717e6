#include "core/calendar.h"

#include <array>
#include <chrono>
#include <optional>
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

/// The number of two digits at `place`, nothing if other characters stand there.
std::optional<int> Paire(std::string_view texte, std::size_t place) {
  const int dizaines = texte[place] - '0', unites = texte[place + 1] - '0';
  if (dizaines < 0 || dizaines > 9 || unites < 0 || unites > 9) return std::nullopt;
  return 10 * dizaines + unites;
}

bool Jour_Reel(int annee, int mois, int jour) {
  return std::chrono::year_month_day(std::chrono::year(annee), std::chrono::month(static_cast<unsigned>(mois)),
                                     std::chrono::day(static_cast<unsigned>(jour)))
      .ok();
}

/// The moment of "jj/mm/aa" and "hh:mm" to the letter, the form of nearly every line; nothing for any other text.
std::optional<Moment> Moment_Ordinaire(std::string_view date, std::string_view heure) {
  if (date.size() != 8 || date[2] != '/' || date[5] != '/' || heure.size() != 5 || heure[2] != ':') return std::nullopt;
  const auto jour = Paire(date, 0), mois = Paire(date, 3), annee = Paire(date, 6);
  const auto heures = Paire(heure, 0), minutes = Paire(heure, 3);
  if (!jour || !mois || !annee || !heures || !minutes || *heures > 23 || *minutes > 59) return std::nullopt;
  const int complete = *annee + (*annee >= 50 ? 1900 : 2000);
  if (!Jour_Reel(complete, *mois, *jour)) return std::nullopt;
  return Moment{complete, *mois, *jour, *heures, *minutes};
}

}  // namespace

Moment Moment_QSO(std::string_view date, std::string_view heure) {
  if (const auto moment = Moment_Ordinaire(date, heure)) return *moment;
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
  if (!Jour_Reel(annee, mois, jour)) Refuse(date);

  // A line without a time stands at the beginning of its day.
  if (Rogne(heure).empty()) return {annee, mois, jour, 0, 0};
  const auto [heures, minutes] = Nombres<2>(heure, ':');
  if (heures > 23 || minutes > 59) Refuse(heure);
  return {annee, mois, jour, heures, minutes};
}

}  // namespace vorelio
