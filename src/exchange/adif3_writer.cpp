#include "exchange/adif3_writer.h"

#include <algorithm>

#include "core/bands.h"
#include "core/text.h"
#include "exchange/adif3_record.h"
#include "exchange/adif_enumerations.h"
#include "exchange/foreign_line.h"
#include "exchange/own_fields.h"
#include "forms/station_context.h"

namespace vorelio {

namespace {

constexpr std::string_view kVersion_ADIF = "3.1.4";

/// About what a record takes.
constexpr std::size_t kTaille_Enregistrement = 400;

void Ajoute_Toujours(std::string& adif, std::string_view nom, std::string_view valeur) {
  const std::string utf8 = Vers_Utf8(valeur);
  adif.append("<").append(nom).append(":").append(std::to_string(utf8.size())).append(">").append(utf8).append(" ");
}

/// The standard's fields hold no control characters; a value that has some stands in a field of our own besides.
void Ajoute(std::string& adif, std::string_view nom, std::string_view valeur) {
  std::string propre(valeur);
  std::replace_if(
      propre.begin(), propre.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  if (!Rogne(propre).empty()) Ajoute_Toujours(adif, nom, Rogne(propre));
}

bool Chiffres(std::string_view texte) {
  return !texte.empty() && std::all_of(texte.begin(), texte.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// "aaaammjj" of a date of the log; empty for a text that is none.
std::string Date_ADIF3(std::string_view date) {
  if (date.size() != 8 || date[2] != '/' || date[5] != '/' || !Chiffres(Coupe(date, 7, 2))) return {};
  std::string complete(date[6] >= '5' ? "19" : "20");
  complete.append(Coupe(date, 7, 2)).append(Coupe(date, 4, 2)).append(Coupe(date, 1, 2));
  try {
    return Date_Du_Log(complete) == date ? complete : "";
  } catch (const Refus&) {
    return {};
  }
}

std::string Heure_ADIF3(std::string_view heure) {
  if (heure.size() != 5 || heure[2] != ':') return {};
  std::string quatre(Coupe(heure, 1, 2));
  quatre.append(Coupe(heure, 4, 2));
  try {
    return Heure_Du_Log(quatre, {}) == heure ? quatre : "";
  } catch (const Refus&) {
    return {};
  }
}

/// One line of the log on its way to a record.
class Ecriture {
 public:
  Ecriture(std::string_view ligne, const Contexte_Journal& contexte) : ligne_(ligne), contexte_(contexte) {}

  std::string Enregistrement() {
    adif_.reserve(kTaille_Enregistrement);
    Champ("CALL", champs::Indicatif_A);
    Moment_Bande_Mode();
    Rapport("RST_SENT", "STX", champs::RSTE_A);
    Rapport("RST_RCVD", "SRX", champs::RSTR_A);
    Lieu();
    Champ("NAME", champs::Prenom_A);
    Champ("QTH", champs::QTH_A);
    Champ("COMMENT", champs::Remarques_A);
    QSL();
    Activite();
    Ajoute(adif_, "STATION_CALLSIGN", contexte_.indicatif);
    Ajoute(adif_, "MY_GRIDSQUARE", Locator_Six(contexte_.locator));
    Champs_Propres();
    return adif_ + "<EOR>";
  }

 private:
  std::string_view Lu(const Champ& champ) const { return Lit_Log(ligne_, champ); }
  void Champ(std::string_view nom, const vorelio::Champ& champ) { Ajoute(adif_, nom, Lu(champ)); }

  void Moment_Bande_Mode() {
    Ajoute(adif_, "QSO_DATE", Date_ADIF3(Lu(champs::Date_A)));
    Ajoute(adif_, "TIME_ON", Heure_ADIF3(Lu(champs::Debut_A)));
    Ajoute(adif_, "TIME_OFF", Heure_ADIF3(Lu(champs::Fin_A)));
    if (const Bande_ADIF3* bande = Bande_Du_Log(Lu(champs::Bande_A))) Ajoute(adif_, "BAND", bande->nom);
    // By way of a satellite: the mode of the contact isn't in the log.
    const std::string_view lu = Lu(champs::Mode_A);
    if (lu == "SAT") return Ajoute(adif_, "PROP_MODE", lu);
    const Mode_ADIF3 mode = Mode_Vers_ADIF3(lu);
    Ajoute(adif_, "MODE", mode.mode);
    Ajoute(adif_, "SUBMODE", mode.sous_mode);
  }

  /// A report of digits alone that has three more than its mode wants is one with the number of a contest behind it.
  void Rapport(std::string_view nom, std::string_view nom_numero, const vorelio::Champ& champ) {
    const std::string_view rapport = Lu(champ), mode = Lu(champs::Mode_A);
    const bool phonie = mode == "SSB" || mode == "FM" || mode == "AM" || mode == "RELAIS" || mode == "SSTV";
    const std::size_t chiffres = phonie ? 2 : 3;
    const bool numero = Chiffres(rapport) && rapport.size() >= chiffres + 3;
    Ajoute(adif_, nom, numero ? rapport.substr(0, chiffres) : rapport);
    if (numero) Ajoute(adif_, nom_numero, rapport.substr(chiffres));
  }

  void Lieu() {
    const std::string_view departement = Lu(champs::Depart_A);
    Contexte_Journal partout;
    partout.francais = [](std::string_view) { return true; };
    if (departement.size() == 2 && !Departement_Francais(departement, {}, partout).empty())
      Ajoute(adif_, "STATE", Majuscules(departement));
    const std::string_view locator = Lu(champs::Locator_A);
    if (!Locator_Six(locator).empty()) Ajoute(adif_, "GRIDSQUARE", locator);
    if (const std::string_view km = Lu(champs::Distance_A); Chiffres(km)) Ajoute(adif_, "DISTANCE", km);
    if (const std::string_view azimut = Lu(champs::Azimut_A); Chiffres(azimut) && Valeur(azimut) <= 360)
      Ajoute(adif_, "ANT_AZ", azimut);
  }

  void QSL() {
    const std::string_view etat = Lu(champs::Etat_QSL);
    if (etat.size() != 1 || etat[0] < '1' || etat[0] > '4') return;
    const int cartes = etat[0] - '1';
    Ajoute(adif_, "QSL_SENT", (cartes & 1) != 0 ? "Y" : "N");
    Ajoute(adif_, "QSL_RCVD", (cartes & 2) != 0 ? "Y" : "N");
    if ((cartes & 1) != 0) Ajoute(adif_, "QSLSDATE", Date_ADIF3(Lu(champs::QSLE_A)));
    if ((cartes & 2) != 0) Ajoute(adif_, "QSLRDATE", Date_ADIF3(Lu(champs::QSLR_A)));
  }

  /// The activity by its name, and the reference that the QTH names with it: "DFCF 89125".
  void Activite() {
    const std::string_view texte = Lu(champs::Activ_A);
    const auto numero = Chiffres(texte) ? static_cast<std::size_t>(Valeur(texte)) : 0;
    if (numero == 0 || numero >= contexte_.activites.size()) return;
    const std::string nom(Rogne(contexte_.activites[numero]));
    if (nom.empty()) return;
    Ajoute(adif_, "SIG", nom);
    const std::string_view qth = Lu(champs::QTH_A);
    if (qth.starts_with(nom + " ")) Ajoute(adif_, "SIG_INFO", qth.substr(nom.size() + 1));
  }

  /// What the record as it stands doesn't give back is added to it.
  void Champs_Propres() {
    static const Texte_Etranger kUtf8(true);
    static const Contexte_Journal kAilleurs;
    Lecteur_ADIF3 lecteur(adif_, true);
    lecteur.Suivant();
    std::string lue = Ligne_ADIF3(lecteur.Champs(), kUtf8, kAilleurs).ligne;
    // A refused record is read with the columns that it is refused for.
    const bool refuse = lue.empty();
    std::string propres;
    for (const Tranche_Ligne& tranche : kTranches) {
      const std::string_view octets = tranche.De(ligne_);
      const bool selon = !tranche.selon_station.empty() && lecteur.Champs().Cherche(tranche.selon_station);
      if (refuse || selon || octets != tranche.De(lue))
        Ajoute_Toujours(propres, std::string(kPrefixe_Propre).append(tranche.nom), octets);
    }
    adif_ += propres;
  }

  std::string_view ligne_;
  const Contexte_Journal& contexte_;
  std::string adif_;
};

}  // namespace

std::string Enregistrement_ADIF3(std::string_view ligne, const Contexte_Journal& contexte) {
  return Ecriture(ligne, contexte).Enregistrement();
}

std::string Fichier_ADIF3(std::string_view log, const Contexte_Journal& contexte, std::string_view moment,
                          const Avancement& avancement) {
  std::string texte;
  texte.reserve((log.size() / kLargeur_Ligne + 2) * kTaille_Enregistrement);
  texte.append("Journal de ").append(Vers_Utf8(contexte.indicatif)).append(Vers_Utf8(", exporté par Vorelio"_t));
  texte.append(kFin_De_Ligne);
  Ajoute(texte, "ADIF_VER", kVersion_ADIF);
  Ajoute(texte, "CREATED_TIMESTAMP", moment);
  Ajoute(texte, "PROGRAMID", "Vorelio");
  Ajoute(texte, "PROGRAMVERSION", Revision_Programme);
  texte.append("<EOH>").append(kFin_De_Ligne);
  std::size_t fait = 0;
  for (Lecteur_Lignes lignes(log); !lignes.Fini();) {
    const std::string_view ligne = lignes.Suivante();
    texte.append(Enregistrement_ADIF3(ligne, contexte)).append(kFin_De_Ligne);
    fait += ligne.size();
    if (avancement) avancement(fait, log.size());
  }
  return texte;
}

}  // namespace vorelio
