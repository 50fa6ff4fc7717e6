#include "search/found_line.h"

#include "core/text.h"
#include "forms/main_window.h"

namespace vorelio {

void Selectionne_Dans_Log(Programme& programme, std::string_view ligne) {
  ListBox& log = programme.Principale().Journal();
  const std::string_view cherchee = Coupe(ligne, 1, kColonnes_Trouvees);
  for (int i = 0; i < log.Count(); ++i)
    if (Coupe(log.Item(i), 1, kColonnes_Trouvees) == cherchee) log.SetListIndex(i);
}

}  // namespace vorelio
