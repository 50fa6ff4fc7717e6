#include "tallies/prefix_tally.h"

#include <algorithm>
#include <array>

#include "core/bands.h"
#include "core/text.h"
#include "stations/error_window.h"
#include "stations/station_files.h"
#include "tallies/tally_file.h"

namespace vorelio::Sous_Programmes {

namespace {

constexpr int kPremiere_Bande = 8;
constexpr int kLargeur_Comparee = 5;
constexpr int kColonne_Pays = 27;

/// Where the findings of a matching line go.
struct Trouvaille {
  std::string& code;
  std::string& pays;
  std::string& prefixe;
};

/// Takes what the line of a prefix tells. A band without a column leaves the code of before.
void Prend_Ligne(std::string_view ligne, int colonne, Trouvaille trouvaille) {
  trouvaille.prefixe = Prefixe_De(ligne);
  if (colonne > 0) trouvaille.code = Coupe(ligne, colonne, 1);
  trouvaille.pays = Pays_De(ligne);
}

bool Correspond(std::string_view ligne, std::string_view indicatif) { return indicatif.starts_with(Prefixe_De(ligne)); }

}  // namespace

int Colonne_Prefixe(std::string_view bande) {
  const int indice = Indice_Bande(bande);
  return indice < 0 ? 0 : kPremiere_Bande + indice;
}

std::string_view Prefixe_De(std::string_view ligne) { return Rogne(Coupe(ligne, 1, kLargeur_Comparee)); }

std::string_view Pays_De(std::string_view ligne) { return Coupe(ligne, kColonne_Pays); }

void Cherche_Prefixe(Programme& programme, std::string_view indicatif, std::string_view bande, std::string& code,
                     std::string& pays, std::string& prefixe) {
  Piege_Fichier_Station(programme, kSuite_Prefixe, [&] {
    const std::string texte = programme.Disque().ReadAll(programme.Chemin_Station(kSuite_Prefixe));
    for (Lecteur_Lignes lignes(texte); !lignes.Fini();) {
      const std::string_view ligne = lignes.Suivante();
      if (!Correspond(ligne, indicatif)) continue;
      Prend_Ligne(ligne, Colonne_Prefixe(bande), {code, pays, prefixe});
      if (Valeur(code) == 0)
        programme.Message("Nouveau prefixe : " + prefixe + "   Pays : " + pays +
                          "   sur Bande : " + std::string(bande));
      return;
    }
    programme.Message(
        "            Prefixe Inconnu, annulez la saisie du QSO\r\n"
        "Dans 'Outils' puis 'Ajout d'un Prefixe', renseignez les 2 fenetres\r\n"
        "                    Saisissez a nouveau le QSO");
  });
}

void Maj_Prefixe(Programme& programme, std::string_view indicatif, std::string_view bande, std::string& code,
                 std::string& pays, std::string& prefixe) {
  Piege_Fichier_Station(programme, kSuite_Prefixe, [&] {
    const std::string fichier = programme.Chemin_Station(kSuite_Prefixe);
    const std::string temporaire = programme.Chemin("Temporaire1.txt");
    const int colonne = Colonne_Prefixe(bande);
    bool trouve = false;
    Ecrit_Temporaire(programme.Disque(), fichier, temporaire,
                     [&](std::string_view ligne) -> std::optional<std::string> {
                       if (trouve || !Correspond(ligne, indicatif)) return std::nullopt;
                       trouve = true;
                       Prend_Ligne(ligne, colonne, {code, pays, prefixe});
                       const bool nouveau = colonne > 0 && Valeur(code) == 0;
                       return nouveau ? std::optional(Avec_Code(ligne, colonne, "1", kPremiere_Bande)) : std::nullopt;
                     });
    if (!trouve)
      programme.Message(
          "Prefixe Inconnu, annulez la saisie du QSO\r\n"
          "Dans Fichier puis Ajout Prefixe, renseignez les 2 fenetres\r\n"
          "Saisissez a nouveau le QSO");
    Prend_Temporaire(programme.Disque(), fichier, temporaire);
  });
}

bool Prefixe_Francais(std::string_view prefixe) {
  static constexpr std::array<std::string_view, 11> kFrance = {"F",  "TH", "TK", "TM", "TP", "TQ",
                                                               "TV", "TW", "HW", "HX", "HY"};
  return std::find(kFrance.begin(), kFrance.end(), prefixe) != kFrance.end();
}

bool Indicatif_Francais(std::string_view indicatif) {
  return Prefixe_Francais(Coupe(indicatif, 1, 1)) || Prefixe_Francais(Coupe(indicatif, 1, 2));
}

}  // namespace vorelio::Sous_Programmes
