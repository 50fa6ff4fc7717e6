#include "tallies/add_prefix_window.h"

#include "core/bands.h"
#include "core/text.h"
#include "stations/station_files.h"
#include "tallies/prefix_tally.h"

namespace vorelio {

using namespace Sous_Programmes;

namespace {

constexpr std::size_t kPrefixe_Au_Plus = 6;

/// Whether the file's last line lacks its end.
bool Finit_Ouvert(const Programme& programme, const std::string& fichier) {
  if (!programme.Disque().Exists(fichier)) return false;
  const std::string texte = programme.Disque().ReadAll(fichier);
  return !texte.empty() && texte.back() != '\n';
}

}  // namespace

Ajout_Prefixe::Ajout_Prefixe(Programme& programme) : Form(programme, "Ajout_Prefixe", "Ajout d'un prefixe") {
  Ajouter.Click = [this] { Ajouter_Click(); };
}

void Ajout_Prefixe::Form_Load() { Centre(); }

void Ajout_Prefixe::Ajouter_Click() {
  if (N_Prefixe.Text().empty()) return programme_.Message("Entrez un prefixe");
  if (N_Prefixe.Text().size() > kPrefixe_Au_Plus) return programme_.Message("6 caracteres maximum pour le prefixe");
  if (N_Pays.Text().empty()) return programme_.Message("Entrez un Pays");

  const std::string fichier = programme_.Chemin_Station(kSuite_Prefixe);
  const std::string jamais_contacte(kBandes.size(), '0');
  std::string ligne = Complete(N_Prefixe.Text(), Colonne_Prefixe(kBandes.front()) - 1) + jamais_contacte + "  ";
  ligne.append(N_Pays.Text()).append(kFin_De_Ligne);
  // After a last line that an editor has left open, the new one would become part of a country's name.
  if (Finit_Ouvert(programme_, fichier)) ligne.insert(0, kFin_De_Ligne);
  programme_.Disque().Append(fichier, ligne);
  Hide();
}

}  // namespace vorelio
