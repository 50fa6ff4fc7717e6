#include "exchange/journal.h"

#include <algorithm>

#include "core/text.h"
#include "exchange/adif3_reader.h"
#include "exchange/adif3_record.h"
#include "exchange/edi_journal.h"
#include "exchange/received_text.h"

namespace vorelio {

namespace {

/// How many records pass between two words of progress.
constexpr std::size_t kPas_Avancement = 1000;

/// Line numbers of places that come in rising order.
class Compteur_Lignes {
 public:
  explicit Compteur_Lignes(std::string_view octets) : octets_(octets) {}

  std::size_t Ligne_De(std::size_t place) {
    ligne_ += static_cast<std::size_t>(std::count(octets_.begin() + static_cast<std::ptrdiff_t>(place_),
                                                  octets_.begin() + static_cast<std::ptrdiff_t>(place), '\n'));
    place_ = place;
    return ligne_;
  }

 private:
  std::string_view octets_;
  std::size_t place_ = 0, ligne_ = 1;
};

/// The first line of what stands in a header before its first tag: some programs say there who they are.
std::string_view Titre_Entete(std::string_view entete) {
  std::string_view titre = entete.substr(0, entete.find('<'));
  titre.remove_prefix(std::min(titre.find_first_not_of(" \t\r\n\xEF\xBB\xBF"), titre.size()));
  return titre.substr(0, titre.find_first_of("\r\n"));
}

std::string Format_ADIF(const Lecteur_ADIF3& lecteur, const Texte_Etranger& texte) {
  constexpr std::size_t kLongueur_Max = 60;
  bool perte = false;
  const auto propre = [&](std::string_view valeur) { return texte.Ligne(valeur, perte).substr(0, kLongueur_Max); };
  const auto lit = [&](std::string_view nom) { return propre(lecteur.Champs_Entete().Valeur_De(nom)); };
  const std::string norme = lit("ADIF_VER"), version = lit("PROGRAMVERSION");
  std::string programme = lit("PROGRAMID");
  if (programme.empty()) programme = propre(Titre_Entete(lecteur.Entete()));
  std::string format = norme.empty() ? "ADIF" : "ADIF " + norme;
  if (!programme.empty()) format += ", " + programme;
  if (!programme.empty() && !version.empty()) format += " " + version;
  return format;
}

void Lit_ADIF(std::string_view octets, const Contexte_Journal& contexte, const Avancement& avancement,
              Journal_Lu& journal) {
  const Texte_Etranger texte(Utf8_Valide(octets));
  Lecteur_ADIF3 lecteur(octets, texte.Utf8());
  Compteur_Lignes lignes(octets);
  bool connu = false;
  for (std::size_t numero = 1; lecteur.Suivant(); ++numero) {
    connu |= lecteur.Champs().Cherche("CALL") != nullptr || lecteur.Champs().Cherche("QSO_DATE") != nullptr;
    Ligne_Etrangere lue = Ligne_ADIF3(lecteur.Champs(), texte, contexte);
    if (lue.refus.empty()) {
      journal.qso.push_back({std::move(lue.ligne), lue.coupe});
    } else {
      bool perte = false;
      journal.refuses.push_back({numero, lignes.Ligne_De(lecteur.Debut()),
                                 texte.Ligne(lecteur.Champs().Valeur_De("CALL"), perte), std::move(lue.refus),
                                 lecteur.Brut(), lecteur.Entete()});
    }
    if (avancement && numero % kPas_Avancement == 0) avancement(lecteur.Place(), octets.size());
  }
  journal.format = Format_ADIF(lecteur, texte);
  if (connu || lecteur.Fin_Vue()) return;
  journal.qso.clear();
  journal.refuses.clear();
  journal.illisible = "Ce fichier n'est ni un journal ADIF ni un journal EDI."_t;
}

/// What a file is that is surely no log of these, in a sentence for the operator; empty if it may be one.
std::string Autre_Fichier(std::string_view octets) {
  const auto commence = [&](std::string_view debut) { return octets.starts_with(debut); };
  if (octets.size() > kTaille_Max_Journal) return Journal_Trop_Long();
  if (octets.find_first_not_of(" \t\r\n\x1A") == std::string_view::npos) return "Ce fichier est vide."_t;
  // Own odd lines may hold a zero byte; only a text of two bytes a character, or no text at all, has many.
  const std::string_view debut = octets.substr(0, 4096);
  const bool zeros = std::count(debut.begin(), debut.end(), '\0') * 4 > static_cast<std::ptrdiff_t>(debut.size());
  if (commence("\xFF\xFE") || commence("\xFE\xFF") || (zeros && debut.find('<') != std::string_view::npos))
    return "Ce fichier est en UTF-16 : enregistrez-le en UTF-8, puis recommencez."_t;
  if (zeros) return "Ce fichier n'est pas un texte : ce n'est ni un journal ADIF ni un journal EDI."_t;
  if (commence("%PDF")) return "Ce fichier est un document PDF, pas un journal."_t;
  if (commence("PK\x03\x04")) return "Ce fichier est une archive ZIP : extrayez-en le journal, puis recommencez."_t;
  if (commence("START-OF-LOG"))
    return "Ce fichier est un journal Cabrillo : exportez-le en ADIF de l'autre logiciel."_t;
  const auto texte = debut.find_first_not_of(" \t\r\n\xEF\xBB\xBF");
  const std::string balise = Majuscules(debut.substr(std::min(texte, debut.size()), 5));
  if (balise == "<?XML" || balise == "<ADX>")
    return "Ce fichier est en XML (ADX) : exportez le journal en ADI de l'autre logiciel."_t;
  return {};
}

}  // namespace

std::string Journal_Trop_Long() {
  return "Ce fichier est trop long pour un journal : "_t + std::to_string(kTaille_Max_Journal >> 20) +
         " Mo au plus sont lus."_t;
}

Journal_Lu Lit_Journal(std::string_view octets, const Contexte_Journal& contexte, const Avancement& avancement) {
  Journal_Lu journal;
  journal.illisible = Autre_Fichier(octets);
  if (!journal.illisible.empty()) return journal;
  if (Est_EDI(octets)) {
    Lit_EDI(octets, contexte, avancement, journal);
  } else {
    Lit_ADIF(octets, contexte, avancement, journal);
  }
  if (avancement) avancement(octets.size(), octets.size());
  return journal;
}

std::string Fichier_Refuses(const Journal_Lu& journal) {
  std::string texte;
  std::string_view entete;
  const auto ajoute = [&](std::string_view partie) {
    texte.append(partie);
    if (!partie.empty() && !partie.ends_with('\n')) texte.append(kFin_De_Ligne);
  };
  for (const QSO_Refuse& refuse : journal.refuses) {
    if (refuse.entete.data() != entete.data()) ajoute(entete = refuse.entete);
    ajoute(refuse.brut);
  }
  return texte;
}

}  // namespace vorelio
