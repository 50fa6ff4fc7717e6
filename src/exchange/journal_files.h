#pragma once

#include <string>
#include <string_view>

#include "core/errors.h"
#include "exchange/journal.h"
#include "forms/programme.h"

/// What import and export of other programs' logs have in common: the station's part in it, file names, the words of
/// failures.
namespace vorelio {

/// What the records are read and written with, of the station as it is now.
Contexte_Journal Contexte_Du_Journal(Programme& programme);

/// False, with the box, where there is no station yet, or a contact of the log is being edited: its line would get
/// another number under the editing.
bool Pret_Pour_Un_Journal(Programme& programme);

/// The last part of a path.
std::string Nom_De_Fichier(const Programme& programme, std::string_view chemin);

/// Where the refused records of a file go: "in-refuses.adi" beside "in.adi".
std::string Nom_Fichier_Refuses(const Programme& programme, std::string_view fichier);

/// `phrase`, and for what reason, in words for whoever has chosen the file.
std::string Phrase_Erreur(const std::string& phrase, const Erreur_Execution& erreur);

}  // namespace vorelio
