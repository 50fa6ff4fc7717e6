#pragma once

#include <functional>
#include <string>

#include "forms/controls.h"
#include "forms/main_window.h"
#include "maps/map_places.h"

namespace vorelio {

/// The 100 cells of a map: their texts, and their places on its image.
void Pose_Cellules(Picture& image, const Cellules& cellules, const std::function<std::string(int)>& texte,
                   const std::function<Place_Case(int)>& place);

/// The same on a map of France; the cells without a department are hidden, but can be coloured and count.
void Pose_Departements(Picture& image, const Cellules& cellules, Carte_France carte);

/// A field of a legend: a colour that only shows.
void Pose_Legende(TextField& champ, Couleur couleur);

}  // namespace vorelio
