#pragma once

#include <string_view>

#include "core/programme.h"

namespace vorelio::Sous_Programmes {

/// Gives a station its log, its three tallies and its list of missing prefixes, as copies of the template station's
/// files, in this order and over what exists. A missing template is run-time error 53, with the files before it copied.
void Cree_Fichiers_Station(Programme& programme, std::string_view indicatif);

}  // namespace vorelio::Sous_Programmes
