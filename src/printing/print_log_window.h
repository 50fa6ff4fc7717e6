#pragma once

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// The log, whole or from number to number, to the printer or into a text file.
class Print_Log : public Form {
 public:
  explicit Print_Log(Programme& programme);

  void Form_Load() override { Centre(); }

  Button Command2{*this, "Command2", "Impression"};  ///< The whole log.
  TextField Debut_Ligne{*this, "Debut_Ligne"};
  TextField Fin_Ligne{*this, "Fin_Ligne"};
  Button Command1{*this, "Command1", "Impression"};      ///< From number to number.
  Button Command3{*this, "Command3", "Enregistrement"};  ///< Into the text file.

 private:
  void Command1_Click();
};

}  // namespace vorelio
