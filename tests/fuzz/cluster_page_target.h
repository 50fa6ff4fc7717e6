#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "cluster/cluster_page.h"
#include "cluster/made_up_page.h"
#include "core/errors.h"

namespace vorelio::tests {

/// A page that goes well, to begin from.
inline std::string ClusterPageSeed() {
  return MadeUpPage({{}, {.dx = "VK9ABCDEFGHIJ", .qrg = "144300.0"}, {.dx = "TM9XYZ", .remarks = "73 <b>x</b>"}});
}

/// Reads one page as the cluster window does; gives the number of the error that has ended it, 0 if none has. A breach
/// of what must hold of the lines aborts.
inline int RunClusterPage(std::string_view page) {
  const auto require = [](bool held, const char* what) {
    if (held) return;
    std::fprintf(stderr, "cluster page: %s\n", what);
    std::abort();
  };
  const std::string text = Fins_De_Ligne(Premiere_Ligne(Majuscules(page)));
  std::size_t listed = 0;
  int error = 0;
  try {
    Lecteur_Spots reader(text);
    while (const auto spot = reader.Suivant()) {
      require(spot->DX.size() == 12 && spot->QRG.size() == 8 && spot->Spotter.size() == 11, "a width");
      const std::string line = Ligne_De_Liste(*spot, Tri::QTR);
      require(line.find('\n') == std::string::npos, "a line end within a line");
      for (const Tri order : {Tri::Indicatif, Tri::QRG})
        require(Ligne_De_Liste(*spot, order).size() == line.size(), "an order that loses characters");
      listed += line.size();
    }
  } catch (const Erreur_Execution& failure) {
    error = failure.Numero();
  }
  require(error == 0 || error == 5 || error == 62, "an error that no page may end in");
  require(listed <= text.size(), "more text than the page has");
  return error;
}

}  // namespace vorelio::tests
