#include "exchange/edi_journal.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/bands.h"
#include "core/text.h"
#include "exchange/adif_enumerations.h"
#include "exchange/edi_record.h"
#include "exchange/foreign_line.h"
#include "exchange/received_text.h"

namespace vorelio {

namespace {

constexpr std::string_view kDebut_EDI = "[REG1TEST";

/// The lines of a file with their places.
class Lignes {
 public:
  explicit Lignes(std::string_view octets) : octets_(octets) {}

  bool Suivante() {
    if (suite_ >= octets_.size()) return false;
    debut_ = suite_;
    suite_ = std::min(octets_.find('\n', debut_), octets_.size() - 1) + 1;
    ++numero_;
    return true;
  }

  /// The line without white space at its ends.
  std::string_view Texte() const {
    std::string_view texte = octets_.substr(debut_, suite_ - debut_);
    const auto debut = texte.find_first_not_of(" \t\r\n\x1A");
    if (debut == std::string_view::npos) return {};
    return texte.substr(debut, texte.find_last_not_of(" \t\r\n\x1A") - debut + 1);
  }

  std::string_view Brute() const { return octets_.substr(debut_, suite_ - debut_); }
  std::size_t Debut() const { return debut_; }
  std::size_t Numero() const { return numero_; }

 private:
  std::string_view octets_;
  std::size_t debut_ = 0, suite_ = 0, numero_ = 0;
};

bool Commence(std::string_view ligne, std::string_view capitales) {
  return Majuscules(ligne.substr(0, capitales.size())) == capitales;
}

/// The fields of a record, in their order in the file.
enum Place_EDI : std::size_t {
  kDate,
  kHeure,
  kIndicatif,
  kMode,
  kRST_Envoye,
  kNumero_Envoye,
  kRST_Recu,
  kNumero_Recu,
  kEchange,
  kLocator,
  kPoints,
  kNombre_Champs
};

using Champs_Ligne = std::array<std::string, kNombre_Champs>;

/// Without blanks, in capitals, with a point: "1,3 GHz" is "1.3GHZ".
std::string Serree(std::string_view texte) {
  std::string serree;
  for (const char c : Majuscules(texte))
    if (c != ' ' && c != '\t') serree += c == ',' ? '.' : c;
  return serree;
}

/// MHz of "432MHZ" or "1.3GHZ". Without a unit, numbers too small for VHF are gigahertz.
double Megahertz(const std::string& serree) {
  const double nombre = Nombre_Lu(serree).value_or(0);
  if (serree.find("GHZ") != std::string::npos) return nombre * 1000;
  if (serree.find("MHZ") != std::string::npos) return nombre;
  return nombre < 50 ? nombre * 1000 : nombre;
}

/// The log's band for a value of "PBand"; empty for one that it doesn't have.
std::string_view Bande_EDI(std::string_view valeur) {
  const std::string serree = Serree(valeur);
  for (const std::string_view bande : kBandes)
    if (Serree(bande) == serree) return bande;
  if (const Bande_ADIF3* bande = Bande_De_Nom(serree)) return bande->bande;
  const double mhz = Megahertz(serree);
  // Names of bands that lie beside the band.
  if (mhz == 1200) return "1.3 Ghz";
  if (mhz == 5600) return "5.7 Ghz";
  const Bande_ADIF3* bande = Bande_De_Frequence(mhz);
  return bande ? bande->bande : std::string_view{};
}

/// Reads a file line by line: headers, and the records under them.
class Lecture_EDI {
 public:
  Lecture_EDI(std::string_view octets, const Contexte_Journal& contexte, Journal_Lu& journal)
      : octets_(octets), contexte_(contexte), journal_(journal), texte_(Utf8_Valide(octets)), lignes_(octets) {}

  void Lit(const Avancement& avancement) {
    while (lignes_.Suivante()) {
      const std::string_view ligne = lignes_.Texte();
      if (ligne.starts_with('[')) {
        Commence_Partie(ligne);
      } else if (dans_QSO_ && !ligne.empty()) {
        Enregistrement(ligne);
        constexpr std::size_t kPas_Avancement = 1000;
        if (avancement && numero_ % kPas_Avancement == 0) avancement(lignes_.Debut(), octets_.size());
      } else if (dans_entete_) {
        Valeur_D_Entete(ligne);
      }
    }
    Nomme_Format();
  }

 private:
  void Commence_Partie(std::string_view ligne) {
    if (Commence(ligne, kDebut_EDI)) {
      debut_entete_ = lignes_.Debut();
      bande_lue_.clear();
      bande_ = {};
      ici_.clear();
    }
    dans_entete_ = Commence(ligne, kDebut_EDI);
    dans_QSO_ = Commence(ligne, "[QSORECORDS");
    if (dans_QSO_) entete_ = octets_.substr(debut_entete_, lignes_.Debut() + lignes_.Brute().size() - debut_entete_);
  }

  void Valeur_D_Entete(std::string_view ligne) {
    bool perte = false;
    const std::string valeur = texte_.Ligne(ligne.substr(std::min(ligne.find('='), ligne.size() - 1) + 1), perte);
    if (Commence(ligne, "PBAND=")) {
      bande_lue_ = valeur;
      bande_ = Bande_EDI(valeur);
      if (std::find(bandes_.begin(), bandes_.end(), valeur) == bandes_.end()) bandes_.push_back(valeur);
    }
    if (Commence(ligne, "PWWLO=")) ici_ = Locator_Six(valeur);
    if (Commence(ligne, "TNAME=") && concours_.empty()) concours_ = valeur;
  }

  void Enregistrement(std::string_view ligne) {
    ++numero_;
    Ligne_En_Cours en_cours;
    const Champs_Ligne champs = Champs(ligne, en_cours.coupe);
    try {
      Convertit(champs, en_cours);
      journal_.qso.push_back({Construit_Ligne(en_cours.qso), en_cours.coupe});
    } catch (const Refus& refus) {
      journal_.refuses.push_back(
          {numero_, lignes_.Numero(), champs[kIndicatif], refus.raison, lignes_.Brute(), entete_});
    }
  }

  Champs_Ligne Champs(std::string_view ligne, bool& perte) const {
    Champs_Ligne champs;
    for (std::string& champ : champs) {
      const std::size_t fin = std::min(ligne.find(';'), ligne.size());
      champ = texte_.Ligne(ligne.substr(0, fin), perte);
      ligne.remove_prefix(std::min(fin + 1, ligne.size()));
    }
    return champs;
  }

  void Convertit(const Champs_Ligne& champs, Ligne_En_Cours& en_cours) const {
    if (Commence(champs[kIndicatif], "ERROR")) throw Refus{"QSO noté en erreur"_t};
    en_cours.Pose_Indicatif(Majuscules(champs[kIndicatif]));
    Champs_QSO& qso = en_cours.qso;
    qso.Date_A = Date_Du_Log(Date_Entiere(champs[kDate]));
    qso.Fin_A = qso.Debut_A = Heure_Du_Log(champs[kHeure], "Heure");
    if (bande_lue_.empty()) throw Refus{"Bande absente"};
    if (bande_.empty()) throw Refus{"Bande que le carnet n'a pas : " + bande_lue_};
    qso.Bande_A = bande_;
    en_cours.Pose(&Champs_QSO::Mode_A, champs::Mode_A, Mode(champs[kMode]));
    en_cours.Pose(&Champs_QSO::RSTE_A, champs::RSTE_A, Rapport_Et_Numero(champs[kRST_Envoye], champs[kNumero_Envoye]));
    en_cours.Pose(&Champs_QSO::RSTR_A, champs::RSTR_A, Rapport_Et_Numero(champs[kRST_Recu], champs[kNumero_Recu]));
    qso.Depart_A = Departement_Francais(champs[kEchange], qso.Indicatif_A, contexte_);
    if (qso.Depart_A.empty()) en_cours.Pose(&Champs_QSO::Remarques_A, champs::Remarques_A, champs[kEchange]);
    en_cours.Pose_Locator(champs[kLocator], ici_.empty() ? Locator_Six(contexte_.locator) : ici_,
                          Bande_HF(qso.Bande_A));
    // A point is a kilometre; a contact that doesn't count has none.
    const double points = Nombre_Lu(champs[kPoints]).value_or(0);
    if (qso.Distance_A.empty() && points >= 1 && points < 99999.5) qso.Distance_A = Texte_Nombre(std::round(points));
    qso.Activ_A = "0";
  }

  /// Of a code; some programs write the mode itself.
  static std::string Mode(const std::string& code) { return code.size() > 1 ? Majuscules(code) : Mode_EDI(code); }

  /// The year has two digits, as the log's.
  static std::string Date_Entiere(const std::string& date) {
    if (date.size() != 6) return date;
    return (date[0] >= '5' ? "19" : "20") + date;
  }

  void Nomme_Format() {
    journal_.format = "EDI (REG1TEST)";
    if (!concours_.empty()) journal_.format += ", " + concours_.substr(0, 60);
    for (std::size_t i = 0; i < bandes_.size() && i < kBandes.size(); ++i) journal_.format += ", " + bandes_[i];
  }

  std::string_view octets_;
  const Contexte_Journal& contexte_;
  Journal_Lu& journal_;
  Texte_Etranger texte_;
  Lignes lignes_;
  bool dans_entete_ = false, dans_QSO_ = false;
  std::size_t debut_entete_ = 0, numero_ = 0;
  std::string_view entete_;
  std::string bande_lue_, ici_, concours_;
  std::string_view bande_;
  std::vector<std::string> bandes_;
};

}  // namespace

bool Est_EDI(std::string_view octets) {
  // It stands at the beginning but for a mark or empty lines; a far "[REG1TEST" is a word in another file.
  constexpr std::size_t kLignes_Avant = 100;
  Lignes lignes(octets.starts_with("\xEF\xBB\xBF") ? octets.substr(3) : octets);
  for (std::size_t i = 0; i < kLignes_Avant && lignes.Suivante(); ++i) {
    if (Commence(lignes.Texte(), kDebut_EDI)) return true;
    if (lignes.Texte().starts_with('<')) return false;
  }
  return false;
}

void Lit_EDI(std::string_view octets, const Contexte_Journal& contexte, const Avancement& avancement,
             Journal_Lu& journal) {
  Lecture_EDI(octets.starts_with("\xEF\xBB\xBF") ? octets.substr(3) : octets, contexte, journal).Lit(avancement);
}

}  // namespace vorelio
