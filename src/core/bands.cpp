#include "core/bands.h"

#include <string>

#include "core/text.h"

namespace vorelio {

int Indice_Bande_Lue(std::string_view bande) {
  if (const int indice = Indice_Bande(bande); indice >= 0) return indice;
  std::string table = Majuscules(bande);
  // Back to the table's own form: "14 MHZ" is "14 Mhz".
  if (table.size() > 2 && table.ends_with("HZ")) table.replace(table.size() - 2, 2, "hz");
  return Indice_Bande(table);
}

}  // namespace vorelio
