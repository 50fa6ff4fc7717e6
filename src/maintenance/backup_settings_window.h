#pragma once

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// Interval and base path of the automatic backup.
class Delta_QSO : public Form {
 public:
  explicit Delta_QSO(Programme& programme);

  void Form_Load() override;

  TextField Val_Delta{*this, "Val_Delta"};
  Label Le_Chemin{*this, "Le_Chemin"};
  Button New_Rep{*this, "New_Rep", "Nouveau repertoire"};
  Button Command1;

 private:
  void New_Rep_Click();
  void Command1_Click();
};

}  // namespace vorelio
