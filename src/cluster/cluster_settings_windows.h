#pragma once

#include <string>

#include "forms/controls.h"
#include "forms/programme.h"

/// What stands around the cluster and belongs to the computer, not to a station: the site's address, and the devices
/// that the serial ports are.
namespace vorelio {

inline constexpr const char* kCle_Adresse = "Adresse Cluster";

/// The setting of a port's device, "Port Com 1" or "Port Com 2".
std::string Cle_Port(int numero);

/// The device that port `numero` is: the one set, or the system's port of that number; empty if there is none.
std::string Peripherique(Programme& programme, int numero);

/// The address of the cluster site.
class Adresse_Cluster : public Form {
 public:
  explicit Adresse_Cluster(Programme& programme);

  void Form_Load() override;

  TextField Adresse{*this, "Adresse"};
  Button Enregistrer{*this, "Enregistrer", "Enregistrer"};
  Button Annuler{*this, "Annuler", "Annuler"};

 private:
  void Enregistrer_Click();
};

/// Which devices "Com 1" and "Com 2" are.
class Ports_Serie : public Form {
 public:
  explicit Ports_Serie(Programme& programme);

  void Form_Load() override;

  ComboBox Port_1{*this, "Port_1", ComboBox::Kind::Editable};
  ComboBox Port_2{*this, "Port_2", ComboBox::Kind::Editable};
  Label Trouves{*this, "Trouves"};  ///< The ports that the system has.
  Button Enregistrer{*this, "Enregistrer", "Enregistrer"};
  Button Annuler{*this, "Annuler", "Annuler"};

 private:
  void Enregistrer_Click();
};

}  // namespace vorelio
