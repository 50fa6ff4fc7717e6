#include "forms/held_work.h"

#include <algorithm>
#include <utility>

#include "core/errors.h"
#include "forms/programme.h"

namespace vorelio {

Tenue::Tenue(Programme& programme, std::function<void()> ecrit) : programme_(programme), ecrit_(std::move(ecrit)) {
  programme_.tenues_.push_back(this);
}

Tenue::~Tenue() { std::erase(programme_.tenues_, this); }

void Tenue::Depose() {
  if (std::exchange(en_avance_, false)) ecrit_();
}

void Tenue::Pendant(const std::function<void()>& travail) {
  try {
    travail();
  } catch (...) {
    try {
      Depose();
    } catch (const Erreur_Execution&) {
      // The work has failed already.
    }
    throw;
  }
  Depose();
}

bool Tenue::Interrompue() { return std::exchange(interrompue_, false); }

}  // namespace vorelio
