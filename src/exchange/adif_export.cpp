#include "exchange/adif_export.h"

#include <array>

#include "core/bands.h"
#include "core/log_line.h"
#include "core/text.h"

namespace vorelio {

namespace {

/// In the order of the band table.
constexpr std::array<std::string_view, kBandes.size()> kBandes_Adif = {"160m", "80m",  "40m", "30m", "20m",   "17m",
                                                                       "15m",  "12m",  "10m", "6m",  "2m",    "70cm",
                                                                       "23cm", "13cm", "6cm", "3cm", "1.25cm"};

/// About what a record takes.
constexpr std::size_t kTaille_Enregistrement = 256;

void Ajoute(std::string& texte, std::string_view balise, std::string_view valeur) {
  texte.append("<").append(balise).append(":").append(std::to_string(valeur.size())).append(">").append(valeur);
}

void Ajoute_Si_Remplie(std::string& texte, std::string_view balise, std::string_view valeur) {
  if (!valeur.empty()) Ajoute(texte, balise, valeur);
}

/// Year, month, day. The century is "20" also for older contacts: the award managers' programs that take these files
/// sort out the few of before 2000 by hand, and would take such a contact twice if its date changed.
std::string Date_Adif(std::string_view date) {
  return std::string("20").append(Fin(date, 2)).append(Coupe(date, 4, 2)).append(Coupe(date, 1, 2));
}

/// Hours and minutes without what stands between them.
std::string Heure_Adif(std::string_view heure) { return std::string(Coupe(heure, 1, 2)).append(Fin(heure, 2)); }

/// Department, QTH and remarks have no field of their own. The comment is written with all three empty as well.
std::string Commentaire_Adif(std::string_view ligne) {
  return std::string("Dpt:")
      .append(Lit_Log(ligne, champs::Depart_Court))
      .append("  ")
      .append(Lit_Log(ligne, champs::QTH_A))
      .append(" ")
      .append(Lit_Log(ligne, champs::Remarques_A));
}

void Ajoute_Enregistrement(std::string& texte, std::string_view ligne) {
  Ajoute(texte, "call", Lit_Log(ligne, champs::Indicatif_A));
  Ajoute_Si_Remplie(texte, "name", Lit_Log(ligne, champs::Prenom_A));
  Ajoute_Si_Remplie(texte, "gridsquare", Lit_Log(ligne, champs::Locator_A));
  Ajoute(texte, "band", Bande_Adif(Lit_Log(ligne, champs::Bande_A)));
  Ajoute(texte, "mode", Lit_Log(ligne, champs::Mode_A));
  Ajoute(texte, "qso_date", Date_Adif(Lit_Log(ligne, champs::Date_A)));
  Ajoute(texte, "time_on", Heure_Adif(Lit_Log(ligne, champs::Debut_A)));
  Ajoute(texte, "time_off", Heure_Adif(Lit_Log(ligne, champs::Fin_A)));
  Ajoute(texte, "rst_sent", Lit_Log(ligne, champs::RSTE_A));
  Ajoute(texte, "rst_rcvd", Lit_Log(ligne, champs::RSTR_A));
  Ajoute(texte, "comment", Commentaire_Adif(ligne));
  texte.append("<eor>");
}

}  // namespace

std::string_view Bande_Adif(std::string_view bande) {
  const int indice = Indice_Bande_Lue(bande);
  return indice < 0 ? "XX.m" : kBandes_Adif[static_cast<std::size_t>(indice)];
}

std::string Enregistrement_Adif(std::string_view ligne_log) {
  std::string texte;
  Ajoute_Enregistrement(texte, ligne_log);
  return texte;
}

std::string Fichier_Adif(std::string_view affichage, std::string_view log, const std::optional<Tranche>& tranche) {
  std::string texte;
  texte.reserve((log.size() / kLargeur_Ligne + 1) * kTaille_Enregistrement);
  texte.append("Exportation du log Vorelio de ").append(affichage).append(" au format ADIF\r\n");
  texte.append("\r\nVorelio 2002-2026, par F4VRL\r\n\r\n\r\n<eoh>\r\n");
  int numero = 1;
  for (Lecteur_Lignes lignes(log); !lignes.Fini(); ++numero) {
    const std::string_view ligne = lignes.Suivante();
    if (tranche && (numero < tranche->premier || numero > tranche->dernier)) continue;
    Ajoute_Enregistrement(texte, ligne);
    texte.append(kFin_De_Ligne);
  }
  return texte;
}

int Nombre_De_Lignes(std::string_view log) {
  int nombre = 0;
  for (Lecteur_Lignes lignes(log); !lignes.Fini(); ++nombre) lignes.Suivante();
  return nombre;
}

}  // namespace vorelio
