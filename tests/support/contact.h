#pragma once

#include <initializer_list>

#include "core/log_line.h"

namespace vorelio::tests {

/// A contact by its first fields, which stand as in the log line: date, callsign, start, end, department, locator,
/// band, mode, both reports, QTH, name. What isn't given is blank.
inline Champs_QSO Contact(std::initializer_list<std::string> values) {
  Champs_QSO qso;
  std::string* const fields[] = {&qso.Date_A,   &qso.Indicatif_A, &qso.Debut_A, &qso.Fin_A,
                                 &qso.Depart_A, &qso.Locator_A,   &qso.Bande_A, &qso.Mode_A,
                                 &qso.RSTE_A,   &qso.RSTR_A,      &qso.QTH_A,   &qso.Prenom_A};
  for (std::string* const* field = fields; const std::string& value : values) **field++ = value;
  return qso;
}

}  // namespace vorelio::tests
