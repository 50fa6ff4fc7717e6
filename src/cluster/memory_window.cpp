#include "cluster/memory_window.h"

#include "cluster/cluster_window.h"

namespace vorelio {

Memoire_CL::Memoire_CL(Programme& programme) : Form(programme, "Memoire_CL", "Memoire Cluster") {
  Mem_Cluster.Click = [this] { Mem_Cluster_Click(); };
  Efface_CL.Click = [this] { Efface_CL_Click(); };
  Retour_CL.Click = [this] { Hide(); };
}

void Memoire_CL::Mem_Cluster_Click() {
  auto& cluster = programme_.Fenetre<Cluster>();
  cluster.Ligne_Cluster = Mem_Cluster.Text();
  if (cluster.Memoire_Pilote) cluster.Envoie_Qrg();
}

void Memoire_CL::Efface_CL_Click() {
  if (Mem_Cluster.ListIndex() < 0) return programme_.Message("Selectionnez une ligne a effacer");
  Mem_Cluster.RemoveItem(Mem_Cluster.ListIndex());
}

}  // namespace vorelio
