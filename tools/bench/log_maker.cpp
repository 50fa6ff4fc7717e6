#include "log_maker.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <string_view>

#include "core/bands.h"
#include "core/log_line.h"
#include "core/text.h"

namespace vorelio::bench {

namespace {

// The constants of a generator of full period over 32 bits: the same log on every machine.
class Dice {
 public:
  unsigned Roll(std::size_t faces) {
    state_ = state_ * 1664525U + 1013904223U;
    return static_cast<unsigned>((state_ >> 8) % faces);
  }
  char Letter() { return static_cast<char>('A' + Roll(26)); }

 private:
  std::uint32_t state_ = 1;
};

std::string TwoDigits(unsigned number) { return Deux_Chiffres(static_cast<int>(number % 100)); }

std::string MakeCallsign(Dice& dice) {
  constexpr std::array<std::string_view, 12> kPrefixes = {"F",  "F",  "F", "F",  "G",  "DL",
                                                          "EA", "ON", "I", "HB", "OK", "SP"};
  std::string callsign(kPrefixes[dice.Roll(kPrefixes.size())]);
  callsign += static_cast<char>('0' + dice.Roll(10));
  const unsigned letters = 2 + dice.Roll(2);
  for (unsigned i = 0; i < letters; ++i) callsign += dice.Letter();
  return callsign;
}

}  // namespace

std::string MakeLog(int contacts) {
  constexpr std::array<std::string_view, 6> kFirst_Names = {"Alain", "Bernard", "Ren\xE9", "Jos\xE9", "Michel", "Yves"};
  Dice dice;
  std::string log;
  log.reserve(static_cast<std::size_t>(contacts) * (kLargeur_Ligne + kFin_De_Ligne.size()));
  std::chrono::sys_time<std::chrono::hours> moment = std::chrono::sys_days(std::chrono::year(1990) / 1 / 1);
  for (int i = 0; i < contacts; ++i, moment += std::chrono::hours(1)) {
    const auto day = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::year_month_day date(day);
    Champs_QSO qso;
    qso.Date_A = TwoDigits(static_cast<unsigned>(date.day())) + "/" + TwoDigits(static_cast<unsigned>(date.month())) +
                 "/" + TwoDigits(static_cast<unsigned>(static_cast<int>(date.year())));
    qso.Indicatif_A = MakeCallsign(dice);
    qso.Debut_A = TwoDigits(static_cast<unsigned>((moment - day).count())) + ":" + TwoDigits(dice.Roll(50));
    qso.Fin_A = qso.Debut_A.substr(0, 3) + "59";
    qso.Depart_A = TwoDigits(1 + dice.Roll(19));
    qso.Bande_A = kBandes[dice.Roll(kBandes.size())];
    if (Bande_VHF(qso.Bande_A)) qso.Locator_A = std::string("JN") + TwoDigits(dice.Roll(100)) + dice.Letter() + "A";
    qso.Mode_A = kModes[dice.Roll(2)];
    qso.RSTE_A = "59";
    qso.RSTR_A = "59";
    qso.Prenom_A = kFirst_Names[dice.Roll(kFirst_Names.size())];
    qso.Activ_A = "0";
    log.append(Construit_Ligne(qso)).append(kFin_De_Ligne);
  }
  return log;
}

std::string FullLogOfOneActivity() {
  std::string log = MakeLog(kFull_Log);
  const std::size_t step = kLargeur_Ligne + kFin_De_Ligne.size();
  for (std::size_t line = 0; line < log.size(); line += step) log[line + champs::Activ_A.colonne - 1] = '1';
  return log;
}

}  // namespace vorelio::bench
