#pragma once

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// The spots that the operator has put aside, in the order in which he did. It goes with the cluster window.
class Memoire_CL : public Form {
 public:
  explicit Memoire_CL(Programme& programme);

  void Form_Load() override { Centre(); }
  /// The closing goes on after this, and the list with it.
  void Form_Unload() override { Hide(); }

  Label Label3{*this, "Label3"};  ///< Heading of the list.
  ListBox Mem_Cluster{*this, "Mem_Cluster"};
  Button Efface_CL{*this, "Efface_CL", "Effacer"};
  Button Retour_CL{*this, "Retour_CL", "Retour Cluster"};

 private:
  void Mem_Cluster_Click();
  void Efface_CL_Click();
};

}  // namespace vorelio
