#pragma once

#include "core/errors.h"

namespace vorelio::tests {

/// Number of the run-time error that `action` raises, 0 if none.
template <typename Action>
int ErrorOf(Action action) {
  try {
    action();
  } catch (const Erreur_Execution& error) {
    return error.Numero();
  }
  return 0;
}

}  // namespace vorelio::tests
