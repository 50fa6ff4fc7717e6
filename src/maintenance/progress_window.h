#pragma once

#include "core/text.h"
#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// How far a rebuild has come. It locks nothing: the main window stays usable.
class Progression : public Form {
 public:
  explicit Progression(Programme& programme) : Form(programme, "Progression", "Mise a jour") {}

  void Form_Load() override { Centre(); }

  Frame Frame1{*this, "Frame1", "Progression de la mise a jour"};
  Label Label3{*this, "Label3", "Ligne N°1"_t};
  Gauge Avance{*this, "Avance"};  ///< Lines of the log that are done.
};

}  // namespace vorelio
