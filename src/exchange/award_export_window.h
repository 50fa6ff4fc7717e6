#pragma once

#include <string>
#include <string_view>

#include "exchange/award_export.h"
#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// Passes the selected contact on to the companion program of its award, unless that one knows the activation already.
class Exporter_QSO : public Form {
 public:
  explicit Exporter_QSO(Programme& programme);

  void Form_Load() override;

  Label Label3{*this, "Label3"};    ///< Callsign.
  Label Label5{*this, "Label5"};    ///< Activation.
  Label Label7{*this, "Label7"};    ///< Companion.
  Label Label9{*this, "Label9"};    ///< What is missing on this computer,
  Label Label10{*this, "Label10"};  ///< and the word about it.
  Button C_Oui{*this, "C_Oui", "Exporter"};
  Button C_Non{*this, "C_Non", "Quitter"};

 private:
  void C_Oui_Click();
  void C_Non_Click() { Unload(); }

  // Each looks the reference up in its companion's file, and adds the line to it, or tells the date of the contact that
  // is there; then the window goes. A file that doesn't exist is run-time error 53.
  void Cherche_Double_DFCF(const std::string& reference, const std::string& ligne);
  void Cherche_Double_DMF(const std::string& reference, const std::string& ligne);
  void Cherche_Double_DCI(const std::string& reference, const std::string& ligne);
  void Cherche_Double_DAI(const std::string& reference, const std::string& ligne);
  void Cherche_Double_DPLF(const std::string& reference, const std::string& ligne);

  void Cherche_Double(const Compagnon& compagnon, const std::string& reference, const std::string& ligne);
  std::string Reglage(const Compagnon& compagnon, const std::string& section, const std::string& cle,
                      const std::string& defaut) const;

  int type_ = 0;  ///< Type number of the award, 0 for none.
};

}  // namespace vorelio
