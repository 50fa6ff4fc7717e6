#include "core/held_disk.h"

#include <algorithm>
#include <utility>

#include "core/errors.h"

namespace vorelio {

Disque_Tenu::Tenue::Tenue(Disque_Tenu& disque, std::function<void(Disk&)> ecrit)
    : disque_(disque), ecrit_(std::move(ecrit)) {
  disque_.tenues_.push_back(this);
}

Disque_Tenu::Tenue::~Tenue() {
  try {
    Depose();
  } catch (const Erreur_Execution&) {
    // Only a procedure that has already failed leaves its file to this place; its own error is the one to tell.
  }
  disque_.tenues_.erase(std::find(disque_.tenues_.begin(), disque_.tenues_.end(), this));
}

void Disque_Tenu::Tenue::Depose() {
  if (!std::exchange(en_avance_, false)) return;
  ecrit_(disque_.disk_);
}

bool Disque_Tenu::Tenue::Disque_Touche() { return std::exchange(touche_, false); }

Disk& Disque_Tenu::Pret() {
  for (Tenue* tenue : tenues_) {
    tenue->Depose();
    tenue->touche_ = true;
  }
  return disk_;
}

}  // namespace vorelio
