#include "stations/log_guard.h"

#include "core/text.h"
#include "forms/clock_text.h"
#include "forms/main_window.h"

namespace vorelio::Sous_Programmes {

bool Log_Connu(Programme& programme, const std::string& chemin) {
  const auto actuelle = programme.Disque().Stamp(chemin);
  const auto& connues = programme.contexte.Empreintes_Logs;
  const auto place = connues.find(chemin);
  return !actuelle || (place != connues.end() && place->second == *actuelle);
}

void Note_Log(Programme& programme, const std::string& chemin) {
  if (const auto empreinte = programme.Disque().Stamp(chemin))
    programme.contexte.Empreintes_Logs[chemin] = *empreinte;
  else
    Oublie_Log(programme, chemin);
}

void Oublie_Log(Programme& programme, const std::string& chemin) { programme.contexte.Empreintes_Logs.erase(chemin); }

std::string Garde_Log(Programme& programme, const std::string& chemin) {
  const std::string base = chemin + ".garde-" + Horodatage(programme);
  std::string garde = base;
  for (int n = 2; programme.Disque().Exists(garde); ++n) garde = base + "-" + std::to_string(n);
  programme.Disque().Copy(chemin, garde);
  return garde;
}

std::string Protege_Log(Programme& programme, const std::string& chemin) {
  if (Log_Connu(programme, chemin)) return {};
  const std::string garde = Garde_Log(programme, chemin);
  std::string annonce = "Le journal a été changé hors de Vorelio : gardé tel quel dans "_t +
                        garde.substr(garde.find_last_of(programme.plateforme.separator) + 1);
  if (auto* principale = programme.Ouverte<Fenetre_Principale>()) principale->Dit(annonce);
  return annonce;
}

std::string Remplace_Log(Programme& programme, const std::string& chemin, std::string_view texte) {
  std::string annonce = Protege_Log(programme, chemin);
  programme.Disque().WriteAll(chemin, texte);
  Note_Log(programme, chemin);
  return annonce;
}

void Prend_Log(Programme& programme, const std::string& chemin, const std::string& temporaire) {
  Protege_Log(programme, chemin);
  programme.Disque().Copy(temporaire, chemin);
  Note_Log(programme, chemin);
  programme.Disque().Delete(temporaire);
}

}  // namespace vorelio::Sous_Programmes
