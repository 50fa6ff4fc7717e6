#pragma once

#include "forms/programme.h"

/// The automatic backup: log, tallies and activity list, copied to the base path of the settings, whose text is joined
/// with the files' endings as it stands.
namespace vorelio::Sous_Programmes {

/// Copies the five files of the station and says so. A missing file or folder is a run-time error, with the files
/// before it copied.
void Sauvegarde_Auto(Programme& programme);

/// Of which day the backup is, and how many contacts it and the log in `Liste_QSO` hold; or that there is none, or none
/// that can be read. For the status line.
std::string Decrit_Sauvegarde(Programme& programme);

/// Copies log and tallies back from the backup, in this order.
void Restaure_Sauvegarde(Programme& programme);

}  // namespace vorelio::Sous_Programmes
