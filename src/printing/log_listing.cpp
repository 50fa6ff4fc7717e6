#include "printing/log_listing.h"

#include <functional>

#include "core/log_line.h"
#include "core/text.h"
#include "forms/clock_text.h"
#include "printing/listing.h"
#include "qsl/state_words.h"

namespace vorelio::Sous_Programmes {

namespace {

constexpr double kTaille = 8;

std::string Titre_Log(Programme& programme, const std::string& station) {
  return "              Log de " + station + " au " + Date_Du_Jour(programme);
}

std::string En_Tete_Log() {
  return "  N°    Date    Indicatf    Debut   Fin   Dpt   Loc     Bande    MODE     RST E     RST R        QTH ou N° Activité"_t;
}

/// Prints the lines of the log that `compris` takes by their numbers, up to the end of the place.
void Imprime_Lignes(Programme& programme, const std::string& station, const std::string& titre,
                    const std::function<bool(int)>& compris) {
  constexpr int kColonnes = 110;
  Impression impression(programme, kTaille, Impression::Gras::Leve);
  const std::string log = programme.Disque().ReadAll(programme.Chemin_Log(station));
  for (const std::string& ligne : {titre, std::string(), En_Tete_Log(), std::string()}) impression.Ligne(ligne);
  int numero = 1;
  for (Lecteur_Lignes lignes(log); !lignes.Fini(); ++numero) {
    const std::string_view ligne = lignes.Suivante();
    if (compris(numero)) impression.Ligne(Colonne_Numero(numero).append(Coupe(ligne, 1, kColonnes)));
  }
  impression.Termine();
}

/// A line of the text file and of the activities: the contact up to its department, the two reports in the order of
/// their columns here, place, remarks and the word for the cards.
std::string Ligne_Large(int numero, std::string_view ligne, const Champ& report, const Champ& autre,
                        const std::string& carte) {
  std::string texte = Colonne_Numero(numero) + Blancs(2);
  texte.append(Coupe(ligne, 1, 41));
  texte.append(Coupe(ligne, report.colonne, report.largeur)).append(Coupe(ligne, autre.colonne, autre.largeur));
  texte.append(Coupe(ligne, champs::QTH_A.colonne, 15)).append(Coupe(ligne, champs::Remarques_A.colonne, 30));
  return texte.append(carte);
}

}  // namespace

void Imprime_Log(Programme& programme, const std::string& station) {
  Imprime_Lignes(programme, station, Titre_Log(programme, station), [](int) { return true; });
}

void Imprime_Log_Partiel(Programme& programme, const std::string& station, std::string_view premier,
                         std::string_view dernier) {
  const std::string titre = "              Log de " + station + " de la ligne N° "_t + std::string(Rogne(premier)) +
                            " a la ligne N° "_t + std::string(Rogne(dernier));
  const double debut = Valeur(premier), fin = Valeur(dernier);
  Imprime_Lignes(programme, station, titre, [=](int numero) { return numero >= debut && numero <= fin; });
}

void Enregistre_Log_Texte(Programme& programme, const std::string& station) {
  const std::string log = programme.Disque().ReadAll(programme.Chemin_Log(station));
  std::string texte;
  texte.reserve(log.size());
  const auto ecrit = [&texte](std::string_view ligne) { texte.append(ligne).append(kFin_De_Ligne); };
  ecrit(Titre_Log(programme, station));
  ecrit("");
  ecrit(
      "  N°      Date    Indicatf    Debut  FIN    Dpt  RST R   RST E  QTH/N° Activite  Remarques/Nom Activité       QSL"_t);
  ecrit("");
  Mot_QSL carte = Parole_QSL();
  int numero = 1;
  for (Lecteur_Lignes lignes(log); !lignes.Fini(); ++numero) {
    const std::string_view ligne = lignes.Suivante();
    // The report sent stands first here, under the title of the one received: programs that read the file count so.
    ecrit(Ligne_Large(numero, ligne, champs::RSTE_A, champs::RSTR_A, carte.De(Lit_Log(ligne, champs::Etat_QSL))));
  }
  programme.Disque().WriteAll(programme.Chemin("Log_" + Forme_Fichier(station) + ".txt"), texte);
}

void Imprime_Activite(Programme& programme, int indice, const std::string& nom, std::string_view bande) {
  const std::string& station = programme.contexte.Station_Indicatif;
  Impression impression(programme, kTaille, Impression::Gras::Leve);
  const std::string titre = station + "            Liste des activations " + nom + " contactées sur la bande "_t +
                            std::string(bande) + " au " + Date_Du_Jour(programme);
  const std::string en_tete =
      "  N°    Date      Indicatf    Debut  FIN    Dpt  RST R   RST E   N° Activite    QTH ou Nom Activité           QSL"_t;
  for (const std::string& ligne : {titre, std::string(), std::string(), en_tete, std::string()})
    impression.Ligne(ligne);
  const std::string log = programme.Disque().ReadAll(programme.Chemin_Log(station));
  Mot_QSL carte = Parole_QSL();
  int numero = 1;
  for (Lecteur_Lignes lignes(log); !lignes.Fini();) {
    const std::string_view ligne = lignes.Suivante();
    const std::string& mot = carte.De(Lit_Log(ligne, champs::Etat_QSL));
    if (Valeur(Lit_Log(ligne, champs::Activ_A)) != indice || Lit_Log(ligne, champs::Bande_A) != bande) continue;
    impression.Ligne(Ligne_Large(numero++, ligne, champs::RSTR_A, champs::RSTE_A, mot));
  }
  impression.Termine();
}

}  // namespace vorelio::Sous_Programmes
