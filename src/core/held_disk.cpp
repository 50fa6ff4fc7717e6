#include "core/held_disk.h"

#include <algorithm>
#include <utility>

#include "core/errors.h"
#include "platform/platform.h"

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

// --- A group of changes ---------------------------------------------------------------------------------------------

Disque_Tenu::Groupe::Groupe(Disque_Tenu& disque) : disque_(disque) { disque_.groupe_ = true; }

Disque_Tenu::Groupe::~Groupe() {
  try {
    Acheve();
  } catch (const Erreur_Execution&) {
    // As above: whoever leaves a group open has already failed.
  }
}

void Disque_Tenu::Groupe::Acheve() {
  disque_.groupe_ = false;
  disque_.Ecrit_Groupe();
}

void Disque_Tenu::Ecrit_Groupe() {
  const auto fichiers = std::exchange(memoire_, {});
  for (const auto& [chemin, contenu] : fichiers) {
    if (contenu) {
      disk_.WriteAll(chemin, *contenu);
    } else if (disk_.Exists(chemin)) {
      disk_.Delete(chemin);
    }
  }
}

const Disque_Tenu::Contenu* Disque_Tenu::En_Memoire(const std::string& path) const {
  const auto place = memoire_.find(path);
  return place == memoire_.end() ? nullptr : &place->second;
}

std::string Disque_Tenu::ReadAll(const std::string& path) {
  const Contenu* contenu = En_Memoire(path);
  if (!contenu) return Pret().ReadAll(path);
  if (!*contenu) throw Erreur_Execution(Erreur::Fichier_Introuvable, path);
  return **contenu;
}

void Disque_Tenu::WriteAll(const std::string& path, std::string_view data) {
  if (!groupe_) return Pret().WriteAll(path, data);
  memoire_[path] = std::string(data);
}

void Disque_Tenu::Append(const std::string& path, std::string_view data) {
  if (!groupe_) return Pret().Append(path, data);
  memoire_[path] = (Exists(path) ? ReadAll(path) : std::string{}).append(data);
}

void Disque_Tenu::Copy(const std::string& from, const std::string& to) {
  if (!groupe_) return Pret().Copy(from, to);
  memoire_[to] = ReadAll(from);
}

void Disque_Tenu::Delete(const std::string& path) {
  if (!groupe_) return Pret().Delete(path);
  if (!Exists(path)) throw Erreur_Execution(Erreur::Fichier_Introuvable, path);
  memoire_[path] = std::nullopt;
}

bool Disque_Tenu::Exists(const std::string& path) {
  const Contenu* contenu = En_Memoire(path);
  return contenu ? contenu->has_value() : Pret().Exists(path);
}

std::uint64_t Disque_Tenu::Size(const std::string& path) {
  return En_Memoire(path) ? ReadAll(path).size() : Pret().Size(path);
}

Instant Disque_Tenu::Written(const std::string& path) { return Pret().Written(path); }

}  // namespace vorelio
