#pragma once

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// Writes the log of the station, whole or from number to number, to `<station>.adi`, over whatever stands there.
class Export_Adif : public Form {
 public:
  explicit Export_Adif(Programme& programme);

  void Form_Load() override;

  OptionButton Option1;  ///< The whole log.
  OptionButton Option2;  ///< From `Debut_Ligne` to `Fin_Ligne`.
  Label Label1;          ///< Title of `Debut_Ligne`.
  TextField Debut_Ligne{*this, "Debut_Ligne"};
  Label Label2;  ///< Title of `Fin_Ligne`.
  TextField Fin_Ligne{*this, "Fin_Ligne"};
  Button Exporter{*this, "Exporter", "Exporter"};

 private:
  void Montre_Tranche(bool visible);
  void Exporter_Click();
  /// False, and nothing written, if the log has no contact of the number `fin`.
  bool Ecrit_Fichier(double debut, double fin);
};

}  // namespace vorelio
