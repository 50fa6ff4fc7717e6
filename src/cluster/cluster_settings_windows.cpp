#include "cluster/cluster_settings_windows.h"

#include "cluster/cluster_window.h"
#include "core/text.h"

namespace vorelio {

std::string Cle_Port(int numero) { return "Port Com " + std::to_string(numero); }

std::string Peripherique(Programme& programme, int numero) {
  std::string choisi = programme.reglages.Commun(Cle_Port(numero), "");
  if (!choisi.empty()) return choisi;
  const std::vector<std::string> ports = programme.plateforme.serial.Devices();
  const auto rang = static_cast<std::size_t>(numero - 1);
  return rang < ports.size() ? ports[rang] : std::string{};
}

// --- Address --------------------------------------------------------------------------------------------------------

Adresse_Cluster::Adresse_Cluster(Programme& programme) : Form(programme, "Adresse_Cluster", "Adresse du site") {
  Enregistrer.Click = [this] { Enregistrer_Click(); };
  Annuler.Click = [this] { Unload(); };
}

void Adresse_Cluster::Form_Load() {
  Centre();
  Adresse.SetText(programme_.reglages.Commun(kCle_Adresse, ""));
}

void Adresse_Cluster::Enregistrer_Click() {
  const std::string adresse = Adresse_Complete(Adresse.Text());
  const std::string haut = Majuscules(adresse);
  if (!adresse.empty() && !haut.starts_with("HTTP://") && !haut.starts_with("HTTPS://")) {
    programme_.Message("L'adresse du site commence par http:// ou https://");
    return Adresse.SetFocus();
  }
  programme_.reglages.Ecrit_Commun(kCle_Adresse, adresse);
  if (auto* cluster = programme_.Ouverte<Cluster>()) cluster->Adresse_Changee();
  Unload();
}

// --- Ports ----------------------------------------------------------------------------------------------------------

Ports_Serie::Ports_Serie(Programme& programme) : Form(programme, "Ports_Serie", "Ports du système"_t) {
  Enregistrer.Click = [this] { Enregistrer_Click(); };
  Annuler.Click = [this] { Unload(); };
}

void Ports_Serie::Form_Load() {
  Centre();
  std::string trouves;
  for (const std::string& nom : programme_.plateforme.serial.Devices()) {
    Port_1.AddItem(nom);
    Port_2.AddItem(nom);
    trouves += (trouves.empty() ? "" : ", ") + nom;
  }
  Trouves.SetCaption(trouves.empty() ? "aucun"_t : trouves);
  Port_1.SetText(programme_.reglages.Commun(Cle_Port(1), ""));
  Port_2.SetText(programme_.reglages.Commun(Cle_Port(2), ""));
}

void Ports_Serie::Enregistrer_Click() {
  programme_.reglages.Ecrit_Commun(Cle_Port(1), Rogne(Port_1.Text()));
  programme_.reglages.Ecrit_Commun(Cle_Port(2), Rogne(Port_2.Text()));
  if (auto* cluster = programme_.Ouverte<Cluster>()) cluster->Ports_Changes();
  Unload();
}

}  // namespace vorelio
