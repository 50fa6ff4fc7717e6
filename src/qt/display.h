#pragma once

#include <QString>

namespace vorelio {

/// Whether a graphical display can be had, found out before Qt ends the process for want of one. If not, one French
/// sentence that says so; else the empty text.
QString MissingDisplay();

}  // namespace vorelio
