#pragma once

#include <string>

#include "forms/programme.h"

/// What keeps a log from being lost to a second hand: another program, an editor, a copy put in its place.
namespace vorelio::Sous_Programmes {

/// Whether the file at `chemin` is still what this run last loaded or wrote there, or isn't there at all.
bool Log_Connu(Programme& programme, const std::string& chemin);

/// From here on the log at `chemin` is known as it stands.
void Note_Log(Programme& programme, const std::string& chemin);

/// From here on nothing is known of it.
void Oublie_Log(Programme& programme, const std::string& chemin);

/// Keeps the log at `chemin` beside it, under its name, ".garde-", date and time, and returns that path. No file that
/// stands there is overwritten. The errors are those of a copy.
std::string Garde_Log(Programme& programme, const std::string& chemin);

/// To be called before the log at `chemin` is rewritten, replaced or restored: one that isn't known is kept beside. The
/// status line says so, in the words returned; they are empty if nothing was to be kept.
std::string Protege_Log(Programme& programme, const std::string& chemin);

/// Puts `texte` in the place of the log at `chemin`, in one step. Returns what `Protege_Log` does.
std::string Remplace_Log(Programme& programme, const std::string& chemin, std::string_view texte);

/// The same with the work file at `temporaire`, which is deleted once the log stands.
void Prend_Log(Programme& programme, const std::string& chemin, const std::string& temporaire);

}  // namespace vorelio::Sous_Programmes
