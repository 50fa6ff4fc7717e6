#include "exchange/edi_record.h"

#include <array>

#include "core/log_line.h"
#include "core/text.h"
#include "exchange/century.h"

namespace vorelio {

namespace {

constexpr std::string_view kDebut_Enregistrements = "[QSORecords";
constexpr int kColonne_Indicatif = 13;

/// The fields of a record from a column on, each up to the next ";".
class Champs_EDI {
 public:
  Champs_EDI(std::string_view enregistrement, int colonne) : reste_(Coupe(enregistrement, colonne)) {}

  std::string_view Suivant() {
    const auto fin = reste_.find(';');
    if (fin == std::string_view::npos) throw Erreur_Execution(Erreur::Argument_Invalide);
    const std::string_view champ = reste_.substr(0, fin);
    reste_.remove_prefix(fin + 1);
    return champ;
  }

  /// A report and the number after it.
  std::string Rapport_Et_Numero() {
    std::string rapport(Suivant());
    return rapport.append(Suivant());
  }

 private:
  std::string_view reste_;
};

/// "jj/mm/" of the record's "aammjj".
std::string Jour_Mois(std::string_view ligne) {
  return std::string(Coupe(ligne, 5, 2)).append("/").append(Coupe(ligne, 3, 2)).append("/");
}

std::string Heure(std::string_view ligne) {
  return std::string(Coupe(ligne, 8, 2)).append(":").append(Coupe(ligne, 10, 2));
}

Premier_Moment Moment_De(std::string_view ligne) {
  return {Jour_Mois(ligne) + Annee_Complete(Coupe(ligne, 1, 2), Siecle::Depuis_51), Heure(ligne)};
}

std::string Convertit(std::string_view enregistrement, std::string_view bande) {
  Champs_QSO qso;
  qso.Date_A = Jour_Mois(enregistrement).append(Coupe(enregistrement, 1, 2));
  qso.Debut_A = Heure(enregistrement);
  qso.Fin_A = qso.Debut_A;
  Champs_EDI champs(enregistrement, kColonne_Indicatif);
  qso.Indicatif_A = champs.Suivant();
  qso.Mode_A = Mode_EDI(champs.Suivant());
  qso.RSTE_A = champs.Rapport_Et_Numero();
  qso.RSTR_A = champs.Rapport_Et_Numero();
  champs.Suivant();
  qso.Locator_A = champs.Suivant();
  qso.Bande_A = bande;
  qso.Activ_A = "0";
  return Construit_Ligne(qso);
}

}  // namespace

Fichier_EDI Lit_Fichier_EDI(std::string_view texte) {
  Fichier_EDI fichier;
  Lecteur_Lignes lignes(texte);
  while (!lignes.Fini()) {
    std::string_view ligne = lignes.Suivante();
    if (ligne.starts_with("PBand")) {
      // The value comes out twice over: a comma in it was once to become a point.
      const std::string valeur(Coupe(ligne, 7));
      fichier.bande = valeur + valeur;
    }
    if (!ligne.starts_with(kDebut_Enregistrements)) continue;
    ligne = lignes.Suivante();
    fichier.premier = Moment_De(ligne);
    for (; !ligne.empty(); ligne = lignes.Fini() ? std::string_view{} : lignes.Suivante())
      fichier.enregistrements.push_back(ligne);
    break;
  }
  return fichier;
}

Ligne_Importee Ligne_EDI(std::string_view enregistrement, std::string_view bande) {
  try {
    return {Convertit(enregistrement, bande), {}, {}};
  } catch (const Erreur_Execution& erreur) {
    return {{}, {}, erreur.Genre()};
  }
}

std::string Mode_EDI(std::string_view code) {
  static constexpr std::array<std::string_view, 10> kModes_EDI = {"AUTRE", "SSB", "CW",   "CW",   "CW",
                                                                  "AM",    "FM",  "RTTY", "SSTV", "ATV"};
  const double nombre = Valeur(code);
  for (std::size_t i = 0; i < kModes_EDI.size(); ++i)
    if (nombre == static_cast<double>(i)) return std::string(kModes_EDI[i]);
  return std::string(code);
}

}  // namespace vorelio
