#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/journal.h"
#include "exchange/log_merge.h"

namespace vorelio {

/// What is to become of each record of another program's log that can come in: new or double, and which contacts of
/// the log it confirms.
class Plan_Import {
 public:
  /// Sets the records against the station's log, which is looked at now only. `aujourdhui` dates a received card whose
  /// record has no date.
  Plan_Import(std::vector<QSO_Lu> qso, std::string_view log, std::string_view aujourdhui);

  std::size_t Nouveaux() const { return fiches_.size() - doubles_; }
  std::size_t Doubles() const { return doubles_; }
  /// Contacts of the log that get a received card.
  std::size_t Confirmes() const { return confirmees_.size(); }
  /// New contacts of which something was cut.
  std::size_t Coupes() const { return coupes_; }

  /// The lines to be added, by date and start time. They look into this plan.
  std::vector<Ligne_A_Placer> Lignes(bool avec_doubles) const;
  /// The lines of the log that a received card changes.
  const Lignes_Changees& Confirmees() const { return confirmees_; }

 private:
  struct Fiche {
    std::string ligne;
    Moment moment;
    bool deja = false;  ///< A double, of a contact of the log or of one further up in the file.
  };

  std::vector<Fiche> fiches_;
  Lignes_Changees confirmees_;
  std::size_t doubles_ = 0;
  std::size_t coupes_ = 0;
};

}  // namespace vorelio
