#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/journal.h"
#include "exchange/log_merge.h"

namespace vorelio {

/// What is to become of each record of another program's log, before anything is changed: new, double or refused, and
/// which contacts of the log it confirms.
class Plan_Import {
 public:
  /// `log` is the station's log, which must outlive the taking of the records; `aujourdhui` dates a received card whose
  /// record has no date.
  Plan_Import(std::string_view log, std::string aujourdhui);

  /// The next record of the file.
  void Prend(const QSO_Lu& lu);
  /// All records have been taken: the log is needed no longer.
  void Acheve();

  std::size_t Lus() const { return fiches_.size() + refus_.size(); }
  std::size_t Nouveaux() const { return fiches_.size() - doubles_; }
  std::size_t Doubles() const { return doubles_; }
  std::size_t Refuses() const { return refus_.size(); }
  /// Contacts of the log that get a received card.
  std::size_t Confirmes() const { return confirmees_.size(); }
  /// New contacts of which something was cut.
  std::size_t Coupes() const { return coupes_; }

  /// The lines to be added, by date and start time.
  std::vector<Ligne_A_Placer> Lignes(bool avec_doubles) const;
  /// The lines of the log that a received card changes.
  const Lignes_Changees& Confirmees() const { return confirmees_; }

  struct Refus {
    std::string place, indicatif, raison;
    std::string texte;  ///< The record as it stands in the file.
  };
  const std::vector<Refus>& Refusees() const { return refus_; }

 private:
  struct Fiche {
    Moment moment;
    bool deja;  ///< A double.
  };

  void Confirme(std::size_t indice, const QSO_Lu& lu);

  std::vector<std::string_view> log_;
  std::string aujourdhui_;
  Index_Doubles index_;
  std::vector<Fiche> fiches_;
  std::string lignes_;  ///< Those of `fiches_`, in a row.
  std::vector<Refus> refus_;
  Lignes_Changees confirmees_;
  std::size_t doubles_ = 0;
  std::size_t coupes_ = 0;
};

}  // namespace vorelio
