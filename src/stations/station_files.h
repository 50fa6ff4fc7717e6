#pragma once

#include <string_view>

#include "forms/programme.h"

namespace vorelio {

/// What the names of a station's files end with, after its callsign; the log ends with ".log".
inline constexpr const char* kSuite_Departement = "_Departement.txt";
inline constexpr const char* kSuite_Locator = "_Locator.txt";
inline constexpr const char* kSuite_Prefixe = "_Prefixe.txt";
inline constexpr const char* kSuite_Absent = "_Absent.txt";
inline constexpr const char* kSuite_Activite = "_Activite.txt";

namespace Sous_Programmes {

/// Gives a station its log, its three tallies and its list of missing prefixes, as copies of the template station's
/// files, in this order and over what exists. A missing template is run-time error 53, with the files before it copied.
void Cree_Fichiers_Station(Programme& programme, std::string_view indicatif);

}  // namespace Sous_Programmes

}  // namespace vorelio
