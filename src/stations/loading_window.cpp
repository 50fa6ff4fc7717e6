#include "stations/loading_window.h"

namespace vorelio {

Chargement::Chargement(Programme& programme) : Form(programme, "Chargement", "Vorelio") {}

void Chargement::Form_Load() { Centre(); }

}  // namespace vorelio
