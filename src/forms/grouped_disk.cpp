#include "forms/grouped_disk.h"

#include "core/errors.h"
#include "core/text.h"
#include "forms/programme.h"

namespace vorelio {

Disque_Groupe::Disque_Groupe(Programme& programme) : programme_(programme), disk_(programme.Disque()) {
  programme_.disque_ = this;
}

Disque_Groupe::~Disque_Groupe() { programme_.disque_ = &disk_; }

bool Disque_Groupe::Ecrit(const std::string& autre, const std::function<void()>& suite) {
  programme_.disque_ = &disk_;
  Fichiers avant;
  try {
    for (const auto& [chemin, contenu] : memoire_) avant[chemin] = Lu(chemin);
    avant[autre] = Lu(autre);
    for (const auto& [chemin, contenu] : memoire_) Pose(chemin, contenu);
    suite();
    return true;
  } catch (const Erreur_Execution&) {
    Remet(avant);
    return false;
  }
}

Disque_Groupe::Contenu Disque_Groupe::Lu(const std::string& path) {
  return disk_.Exists(path) ? Contenu(disk_.ReadAll(path)) : std::nullopt;
}

void Disque_Groupe::Pose(const std::string& path, const Contenu& contenu) {
  if (contenu) {
    disk_.WriteAll(path, *contenu);
  } else if (disk_.Exists(path)) {
    disk_.Delete(path);
  }
}

void Disque_Groupe::Remet(const Fichiers& avant) {
  for (const auto& [chemin, contenu] : avant) {
    try {
      if (Lu(chemin) != contenu) Pose(chemin, contenu);
    } catch (const Erreur_Execution&) {
      // Whoever is told of the failure will meet this one too.
    }
  }
}

// --- Disk -----------------------------------------------------------------------------------------------------------

std::string Disque_Groupe::ReadAll(const std::string& path) {
  const auto place = memoire_.find(path);
  if (place == memoire_.end()) return disk_.ReadAll(path);
  if (!place->second) throw Erreur_Execution(Erreur::Fichier_Introuvable, path);
  return *place->second;
}

void Disque_Groupe::WriteAll(const std::string& path, std::string_view data) { memoire_[path] = std::string(data); }

void Disque_Groupe::Append(const std::string& path, std::string_view data) {
  memoire_[path] = (Exists(path) ? ReadAll(path) : std::string{}).append(data);
}

// No log passes through a group.
void Disque_Groupe::AppendLine(const std::string& path, std::string_view line) {
  Append(path, std::string(line).append(kFin_De_Ligne));
}

void Disque_Groupe::Copy(const std::string& from, const std::string& to) { memoire_[to] = ReadAll(from); }

void Disque_Groupe::Delete(const std::string& path) {
  if (!Exists(path)) throw Erreur_Execution(Erreur::Fichier_Introuvable, path);
  memoire_[path] = std::nullopt;
}

bool Disque_Groupe::Exists(const std::string& path) {
  const auto place = memoire_.find(path);
  return place == memoire_.end() ? disk_.Exists(path) : place->second.has_value();
}

std::uint64_t Disque_Groupe::Size(const std::string& path) {
  return memoire_.count(path) > 0 ? ReadAll(path).size() : disk_.Size(path);
}

Instant Disque_Groupe::Written(const std::string& path) { return disk_.Written(path); }

}  // namespace vorelio
