#pragma once

#include <string>
#include <string_view>

#include "forms/programme.h"

/// The log of a station: how its file comes into `Liste_QSO`, and the four ways in which it changes. The file is
/// replaced as a whole by what the list holds; what is reported as done is on the disk.
namespace vorelio::Sous_Programmes {

/// The text of the current station's log. A missing log is run-time error 53.
std::string Texte_Log(Programme& programme);

/// Fills a list with the log of `station`, each line after its number. Events are served meanwhile. A missing log is
/// run-time error 53, a line beyond the 99999th is error 5; the list is empty then, or ends before that line.
void Liste_Log(Programme& programme, std::string_view station, ListBox& liste);

/// Fills `Liste_QSO` from the log of `station`, sets `Nb_QSO` and the next number in `Frame4`. A missing log is
/// run-time error 53, a line beyond the 99999th is error 5.
void Charge_Log(Programme& programme, std::string_view station);

/// Appends one `Ligne_Log` to the file; the list is the caller's.
void Ajoute_Ligne_Log(Programme& programme, std::string_view ligne);

/// Puts one `Ligne_Liste` in place of another, in the list and in the file. Numbers and order stay, also when the date
/// has changed.
void Remplace_QSO_Log(Programme& programme, std::string_view ancienne, std::string_view nouvelle);

/// Places a `Ligne_Log` at its date and start time, before the lines of the same moment, renumbers and rewrites. A date
/// or time that is none, in the new line or in an old one before its place, is run-time error 13.
void Insere_QSO_Log(Programme& programme, std::string_view ligne);

/// Removes the contact selected in `Liste_QSO`, renumbers and rewrites. `Nb_QSO` stays as it is.
void Efface_Ligne_Log(Programme& programme);

}  // namespace vorelio::Sous_Programmes
