#include "exchange/adif3_record.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <utility>

#include "core/bands.h"
#include "core/text.h"
#include "exchange/adif_enumerations.h"
#include "exchange/foreign_line.h"
#include "exchange/own_fields.h"

namespace vorelio {

namespace {

/// One record on its way to a log line.
class Lecture {
 public:
  Lecture(const Enregistrement_ADIF& champs, const Texte_Etranger& texte, const Contexte_Journal& contexte)
      : champs_(champs), texte_(texte), contexte_(contexte) {}

  std::string Ligne() {
    Moment_Et_Indicatif();
    Bande();
    Mode();
    Rapports();
    Lieu();
    Pose(&Champs_QSO::Prenom_A, champs::Prenom_A, {"NAME", "NAME_INTL"});
    Pose(&Champs_QSO::QTH_A, champs::QTH_A, {"QTH", "QTH_INTL"});
    QSL();
    Activite_Et_Remarques();
    return Impose_Champs_Propres(Construit_Ligne(ligne_.qso), champs_, texte_);
  }

  bool Coupe_Quelque_Chose() const { return ligne_.coupe; }

 private:
  std::string Lit(std::string_view nom) { return texte_.Ligne(champs_.Valeur_De(nom), ligne_.coupe); }

  /// The first of these fields that isn't empty.
  std::string Premier(std::initializer_list<std::string_view> noms) {
    for (const std::string_view nom : noms)
      if (std::string valeur = Lit(nom); !valeur.empty()) return valeur;
    return {};
  }

  void Pose(std::string Champs_QSO::*champ, const Champ& place, std::initializer_list<std::string_view> noms) {
    ligne_.Pose(champ, place, Premier(noms));
  }

  /// Whether a column comes from this program's own field, so that the standard's need not be right.
  bool Impose(std::string_view tranche) const {
    return champs_.Propre() && champs_.Cherche(std::string(kPrefixe_Propre).append(tranche)) != nullptr;
  }

  void Moment_Et_Indicatif() {
    if (!Impose("INDICATIF")) ligne_.Pose_Indicatif(Majuscules(Lit("CALL")));
    if (!Impose("DATE")) ligne_.qso.Date_A = Date_Du_Log(Lit("QSO_DATE"));
    if (!Impose("DEBUT")) ligne_.qso.Debut_A = Heure_Du_Log(Premier({"TIME_ON", "TIME_OFF"}), "Heure");
    if (Impose("FIN")) return;
    const std::string fin = Lit("TIME_OFF");
    ligne_.qso.Fin_A = fin.empty() ? ligne_.qso.Debut_A : Heure_Du_Log(fin, "Heure de fin");
  }

  void Bande() {
    if (Impose("BANDE")) return;
    const std::string nom = Lit("BAND"), frequence = Lit("FREQ");
    const Bande_ADIF3* bande = Bande_De_Nom(nom);
    if (!bande && nom.empty() && frequence.empty()) throw Refus{"Bande absente"};
    if (!bande)
      if (const auto mhz = Nombre_Lu(frequence)) bande = Bande_De_Frequence(*mhz);
    if (!bande && !frequence.empty()) throw Refus{"Fréquence hors des bandes du carnet : "_t + frequence};
    if (!bande || bande->bande.empty())
      throw Refus{"Bande que le carnet n'a pas : " + (bande ? std::string(bande->nom) : nom)};
    ligne_.qso.Bande_A = bande->bande;
  }

  void Mode() {
    std::string mode = Mode_Du_Log({Lit("MODE"), Lit("SUBMODE")}, ligne_.coupe);
    if (mode.empty() && Majuscules(Lit("PROP_MODE")) == "SAT") mode = "SAT";
    ligne_.Pose(&Champs_QSO::Mode_A, champs::Mode_A, std::move(mode));
  }

  void Rapports() {
    ligne_.Pose(&Champs_QSO::RSTE_A, champs::RSTE_A,
                Rapport_Et_Numero(Lit("RST_SENT"), Premier({"STX", "STX_STRING"})));
    ligne_.Pose(&Champs_QSO::RSTR_A, champs::RSTR_A,
                Rapport_Et_Numero(Lit("RST_RCVD"), Premier({"SRX", "SRX_STRING"})));
  }

  void Lieu() {
    for (const std::string_view nom : {"STATE", "CNTY"})
      if (ligne_.qso.Depart_A.empty())
        ligne_.qso.Depart_A = Departement_Francais(Lit(nom), ligne_.qso.Indicatif_A, contexte_);
    ligne_.Pose_Locator(Lit("GRIDSQUARE"), Ici(), Bande_HF(ligne_.qso.Bande_A));
    if (ligne_.qso.Distance_A.empty()) ligne_.qso.Distance_A = Entier_Jusqu_A("DISTANCE", 99999);
    if (ligne_.qso.Azimut_A.empty()) ligne_.qso.Azimut_A = Entier_Jusqu_A("ANT_AZ", 360);
  }

  /// Where the contact was made from: a portable station's log may say it of each. The station's own locator knows
  /// better where the record tells no more than its square.
  std::string Ici() {
    const std::string dit = Lit("MY_GRIDSQUARE");
    const std::string ici = Locator_Six(dit);
    const bool meme_carre = dit.size() < 6 && ici.compare(0, 4, contexte_.locator, 0, 4) == 0;
    return ici.empty() || meme_carre ? Locator_Six(contexte_.locator) : ici;
  }

  std::string Entier_Jusqu_A(std::string_view nom, double maximum) {
    const auto nombre = Nombre_Lu(Lit(nom));
    return nombre && *nombre >= 0 && std::round(*nombre) <= maximum ? Texte_Nombre(std::round(*nombre)) : "";
  }

  void QSL() {
    const auto oui = [&](std::string_view nom, std::string_view lettres) {
      const std::string valeur = Majuscules(Lit(nom));
      return valeur.size() == 1 && lettres.find(valeur[0]) != std::string_view::npos;
    };
    // "R" is asked for, "Q" waits in the queue, "I" isn't wanted: no card yet. "V" is one that an award has accepted.
    const bool envoyee = oui("QSL_SENT", "Y"), recue = oui("QSL_RCVD", "YV");
    const char etat = static_cast<char>('1' + (envoyee ? 1 : 0) + (recue ? 2 : 0));
    ligne_.qso.Bloc_QSL = Blancs(7) + etat + " " + Date_QSL("QSLSDATE", envoyee) + Date_QSL("QSLRDATE", recue);
  }

  /// A date of a card in its columns; blank where there is no card, or no real date.
  std::string Date_QSL(std::string_view nom, bool carte) {
    std::string date;
    try {
      if (carte) date = Date_Du_Log(Lit(nom));
    } catch (const Refus&) {
      date.clear();
    }
    return Complete(date, 8, 1);
  }

  void Activite_Et_Remarques() {
    ligne_.qso.Activ_A = "0";
    std::string remarques = Premier({"COMMENT", "COMMENT_INTL", "NOTES", "NOTES_INTL"});
    if (!Impose("ACTIVITE")) {
      bool trouvee = false;
      for (const auto& [sigle, reference] : References()) {
        const int numero = trouvee ? 0 : Numero_Activite(sigle);
        if (numero > 0) {
          ligne_.qso.Activ_A = std::to_string(numero);
          trouvee = true;
        }
        Pose_Reference(sigle, reference, numero > 0, remarques);
      }
    }
    ligne_.Pose(&Champs_QSO::Remarques_A, champs::Remarques_A, std::move(remarques));
  }

  /// Programme and reference of what the other station activated.
  std::vector<std::pair<std::string, std::string>> References() {
    std::vector<std::pair<std::string, std::string>> references;
    const auto ajoute = [&](std::string sigle, std::string reference) {
      std::pair<std::string, std::string> nouvelle(std::move(sigle), std::move(reference));
      if (std::find(references.begin(), references.end(), nouvelle) == references.end())
        references.push_back(std::move(nouvelle));
    };
    std::string sigle = Premier({"SIG", "SIG_INTL"}), reference = Premier({"SIG_INFO", "SIG_INFO_INTL"});
    if (!sigle.empty() || !reference.empty()) ajoute(std::move(sigle), std::move(reference));
    static constexpr std::pair<std::string_view, std::string_view> kChamps[] = {
        {"POTA_REF", "POTA"}, {"SOTA_REF", "SOTA"}, {"WWFF_REF", "WWFF"}, {"IOTA", "IOTA"}};
    for (const auto& [champ, nom] : kChamps)
      if (std::string valeur = Lit(champ); !valeur.empty()) ajoute(std::string(nom), std::move(valeur));
    return references;
  }

  /// Number of an activity of the station, 0 without one. Two digits are what the column holds.
  int Numero_Activite(std::string_view sigle) const {
    for (std::size_t n = 1; n < contexte_.activites.size() && n < 100; ++n)
      if (!sigle.empty() && Majuscules(Rogne(contexte_.activites[n])) == Majuscules(sigle)) return static_cast<int>(n);
    return 0;
  }

  /// The log has the reference of its activity in the QTH, "DFCF 89125"; where that is taken, and for what is no
  /// activity of the station's, it stands behind the remarks.
  void Pose_Reference(const std::string& sigle, const std::string& reference, bool activite, std::string& remarques) {
    const std::string texte = sigle + (sigle.empty() || reference.empty() ? "" : " ") + reference;
    if (Majuscules(ligne_.qso.QTH_A) == Majuscules(texte)) return;
    if (activite && reference.empty()) return;
    if (activite && ligne_.qso.QTH_A.empty() && texte.size() <= static_cast<std::size_t>(champs::QTH_A.largeur)) {
      ligne_.qso.QTH_A = texte;
    } else {
      remarques += (remarques.empty() ? "" : " ") + texte;
    }
  }

  const Enregistrement_ADIF& champs_;
  const Texte_Etranger& texte_;
  const Contexte_Journal& contexte_;
  Ligne_En_Cours ligne_;
};

}  // namespace

Ligne_Etrangere Ligne_ADIF3(const Enregistrement_ADIF& champs, const Texte_Etranger& texte,
                            const Contexte_Journal& contexte) {
  Lecture lecture(champs, texte, contexte);
  try {
    std::string ligne = lecture.Ligne();
    return {std::move(ligne), {}, lecture.Coupe_Quelque_Chose()};
  } catch (const Refus& refus) {
    return {{}, refus.raison, false};
  }
}

}  // namespace vorelio
