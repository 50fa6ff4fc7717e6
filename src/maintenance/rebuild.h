#pragma once

#include "forms/programme.h"

/// The tallies started over from their templates, with the whole log run through them. The QSL state of each contact
/// becomes the code, so a tally rebuilt needn't be the one that grew contact by contact.
///
/// Each is the same to the byte as if the tally were read and rewritten for every line of the log, also when it fails
/// half way, and also for what is done in the main window meanwhile.
namespace vorelio::Sous_Programmes {

/// `<station>_Prefixe.txt`. Callsigns of unknown prefix go to the list named after the callsign typed last, followed by
/// "_Absent.txt". A missing file is run-time error 53.
void Refait_Prefixes(Programme& programme);

/// `<station>_Departement.txt`. Corsica is looked up as "2A" and "2B". A band outside the band table is run-time error
/// 5 once its line is found; `Temporaire.txt` is then left with the lines before it.
void Refait_Departements(Programme& programme);

/// `<station>_Locator.txt`. A band without squares, which comes so far only while the form is on 24 GHz, ends the tally
/// before its line.
void Refait_Locators(Programme& programme);

/// The three of them in one go, without a box or a window and with no event served: behind the replacement of a log. A
/// line whose band is outside the band table gives no department.
void Refait_Pointages(Programme& programme);

}  // namespace vorelio::Sous_Programmes
