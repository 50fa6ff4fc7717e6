#pragma once

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// The small window that stands on the screen while a log is read.
class Chargement : public Form {
 public:
  explicit Chargement(Programme& programme);

  void Form_Load() override;

  Frame Frame1{*this, "Frame1", "Chargement Fichier"};
};

}  // namespace vorelio
