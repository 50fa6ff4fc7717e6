#pragma once

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// How many contacts the log holds, with whom, and how far the cards of each activity are.
class Statistique_QSO : public Form {
 public:
  explicit Statistique_QSO(Programme& programme);

  /// Counts the log. What doesn't fit the columns of the list is run-time error 5, an activity above 30 error 9.
  void Form_Load() override;

  Label NbQSO{*this, "NbQSO"};
  Label NbFR{*this, "NbFR"};        ///< With French stations.
  Label NbET{*this, "NbET"};        ///< With foreign ones.
  Label Label19{*this, "Label19"};  ///< Titles of the list.
  ListBox StatActivite{*this, "StatActivite"};
};

}  // namespace vorelio
