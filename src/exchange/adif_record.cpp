#include "exchange/adif_record.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "core/log_line.h"
#include "core/text.h"

namespace vorelio {

namespace {

[[noreturn]] void Refuse(std::string_view texte) { throw Erreur_Execution(Erreur::Argument_Invalide, texte); }

bool Fin_D_Entete(std::string_view ligne) { return Majuscules(Coupe(ligne, 1, 5)) == "<EOH>"; }

/// The value of the tag that stands at `place`. The last `de_moins` characters before the "<" don't count.
std::string_view Valeur_A(std::string_view ligne, std::size_t place, std::string_view balise, std::size_t de_moins) {
  const auto ouverture = ligne.find('>', place);
  const auto fin = ouverture == std::string_view::npos ? ouverture : ligne.find('<', ouverture);
  if (fin == std::string_view::npos) Refuse(balise);
  std::string_view valeur = ligne.substr(ouverture + 1, fin - ouverture - 1);
  valeur.remove_suffix(std::min(de_moins, valeur.size()));
  return Rogne(valeur);
}

/// A record in capitals, with the places where a tag can begin: it is asked for some twenty of them.
class Enregistrement {
 public:
  explicit Enregistrement(std::string_view ligne) : texte_(Majuscules(ligne)) {
    constexpr std::size_t kBalises_Usuelles = 24;
    places_.reserve(kBalises_Usuelles);
    for (auto place = texte_.find('<'); place != std::string::npos; place = texte_.find('<', place + 1))
      places_.push_back(place);
  }

  /// The value of the first tag that begins with `balise`, nothing without such a tag.
  std::optional<std::string_view> Champ(std::string_view balise, std::size_t de_moins = 0) const {
    for (const std::size_t place : places_)
      // The letter after the "<" tells most tags apart.
      if (texte_[place + 1] == balise[1] && texte_.compare(place, balise.size(), balise) == 0)
        return Valeur_A(texte_, place, balise, de_moins);
    return std::nullopt;
  }

 private:
  std::string texte_;
  std::vector<std::size_t> places_;
};

/// The same, with a value for a tag that is missing or empty.
std::string Champ_Ou(const Enregistrement& ligne, std::string_view balise, std::string_view defaut) {
  const auto valeur = ligne.Champ(balise);
  return std::string(valeur && !valeur->empty() ? *valeur : defaut);
}

/// A date or a time put together from pieces of a value, `separateur` between them.
std::string Morceaux(std::string_view valeur, std::initializer_list<std::pair<int, int>> places, char separateur) {
  std::string texte;
  for (const auto& [colonne, largeur] : places) {
    if (colonne != places.begin()->first) texte += separateur;
    texte.append(Coupe(valeur, colonne, largeur));
  }
  return texte;
}

std::string Heure(std::string_view valeur) { return Morceaux(valeur, {{1, 2}, {3, 2}}, ':'); }

/// A report, and the number of the exchange after it.
std::string Rapport(const Enregistrement& ligne, std::string_view balise, std::string_view balise_numero) {
  std::string rapport = Champ_Ou(ligne, balise, "XX");
  if (const auto numero = ligne.Champ(balise_numero)) rapport.append(numero->empty() ? "XX" : *numero);
  return rapport;
}

/// The band, empty if the record gives none that the log knows. A frequency counts more than a band, and loses its last
/// character first, so that "144" is read as 14 MHz: logs of earlier imports were made so.
std::string_view Bande(const Enregistrement& ligne) {
  auto valeur = ligne.Champ("<FREQ", 1);
  if (valeur) {
    valeur = Coupe(*valeur, 1, 5);
    valeur = valeur->substr(0, valeur->find('.'));
  } else {
    valeur = ligne.Champ("<BAND");
  }
  return valeur ? Bande_Importee(*valeur) : std::string_view{};
}

/// Department of France; the states and provinces of other countries begin with a letter.
std::string Departement(const Enregistrement& ligne) {
  const auto valeur = ligne.Champ("<STATE");
  if (valeur && valeur->empty()) Refuse("<STATE");
  const bool numero = valeur && valeur->front() >= '0' && valeur->front() <= '9';
  return numero ? std::string(*valeur) : Blancs(2);
}

void Avance_Etat_QSL(const Enregistrement& ligne, char& etat) {
  const std::string envoyee = Champ_Ou(ligne, "<QSL_SENT", "N");
  const std::string recue = Champ_Ou(ligne, "<QSL_RCVD", "N");
  if (envoyee == "N" && recue == "N") etat = '1';
  if (envoyee == "Y" && recue == "N") etat = '2';
  if (envoyee == "N" && recue == "Y") etat = '3';
  if (envoyee == "Y" && recue == "Y") etat = '4';
  if (envoyee == "X" || recue == "X") etat = '1';
}

/// All of a log line from the record. The messages come out also when a field stops the reading.
std::string Convertit(const Enregistrement& ligne, char& etat_QSL, std::vector<std::string>& messages) {
  Champs_QSO qso;

  const std::string date = Champ_Ou(ligne, "<QSO_DATE", "");
  qso.Date_A = Morceaux(date, {{7, 2}, {5, 2}, {3, 2}}, '/');
  if (date.empty()) {
    // It fills its ten columns, the gap included; whoever reads the eight of the date finds 2020.
    qso.Date_A = "01/01/2000";
    messages.push_back("Date absente, remplacée par 01/01/2000"_t);
  }

  const std::string debut = Champ_Ou(ligne, "<TIME_ON", "");
  qso.Debut_A = Heure(debut);
  if (debut.empty()) {
    qso.Debut_A = "00:00";
    messages.push_back("Heure absente, remplacée par 00:00"_t);
  }
  const auto fin = ligne.Champ("<TIME_OFF");
  qso.Fin_A = !fin ? qso.Debut_A : fin->empty() ? "00:00" : Heure(*fin);

  qso.Indicatif_A = Champ_Ou(ligne, "<CALL", "").substr(0, 12);
  if (qso.Indicatif_A.empty()) {
    qso.Indicatif_A = "FXXXX";
    messages.push_back("Indicatif absent, remplacé par FXXXX"_t);
  }

  qso.Mode_A = Champ_Ou(ligne, "<MODE", "XXX");
  qso.RSTE_A = Rapport(ligne, "<RST_SENT", "<STX");
  qso.RSTR_A = Rapport(ligne, "<RST_RCVD", "<SRX");
  qso.Locator_A = Champ_Ou(ligne, "<GRIDSQUARE", "").substr(0, 6);

  qso.Bande_A = Bande(ligne);
  if (qso.Bande_A.empty()) {
    qso.Bande_A = "1.8 Mhz";
    messages.push_back("Bande absente, remplacée par 1.8 Mhz"_t);
  }

  qso.QTH_A = Champ_Ou(ligne, "<QTH", "").substr(0, 20);
  qso.Prenom_A = Champ_Ou(ligne, "<NAME", "").substr(0, 15);
  Avance_Etat_QSL(ligne, etat_QSL);
  qso.Bloc_QSL = etat_QSL + Blancs(19);
  qso.Remarques_A = Champ_Ou(ligne, "<COMMENT", "").substr(0, 30);
  qso.Depart_A = Departement(ligne);
  qso.Activ_A = "0";
  return Construit_Ligne(qso);
}

}  // namespace

Premier_Moment Premier_ADIF(std::string_view texte) {
  Lecteur_Lignes lignes(texte);
  while (!lignes.Fini()) {
    if (!Fin_D_Entete(lignes.Suivante())) continue;
    std::string ligne;
    while (ligne.empty()) ligne = Majuscules(lignes.Suivante());
    const auto champ = [&](std::string_view nom) {
      const auto place = ligne.find(nom);
      if (place == std::string::npos) Refuse(nom);
      return Valeur_A(ligne, place, nom, 0);
    };
    const std::string_view date = champ("QSO_DATE");
    return {Morceaux(date, {{7, 2}, {5, 2}, {1, 4}}, '/'), Heure(champ("TIME_ON"))};
  }
  return {};
}

std::vector<std::string_view> Enregistrements_ADIF(std::string_view texte) {
  std::vector<std::string_view> enregistrements;
  bool apres_entete = false;
  for (Lecteur_Lignes lignes(texte); !lignes.Fini();) {
    const std::string_view ligne = lignes.Suivante();
    if (Fin_D_Entete(ligne)) {
      apres_entete = true;
    } else if (apres_entete && !ligne.empty()) {
      enregistrements.push_back(ligne);
    }
  }
  return enregistrements;
}

Ligne_Importee Ligne_ADIF(std::string_view enregistrement, char& etat_QSL) {
  Ligne_Importee lue;
  try {
    lue.ligne = Convertit(Enregistrement(enregistrement), etat_QSL, lue.messages);
  } catch (const Erreur_Execution& erreur) {
    lue.erreur = erreur.Genre();
  }
  return lue;
}

std::string_view Bande_Importee(std::string_view valeur) {
  struct Ligne_Table {
    std::string_view valeur, bande;
  };
  static constexpr Ligne_Table kTable[] = {
      {"160M", "1.8 Mhz"},  {"1.8", "1.8 Mhz"},                                          //
      {"80M", "3.5 Mhz"},   {"3.5", "3.5 Mhz"},  {"3.6", "3.5 Mhz"},  {"3", "3.5 Mhz"},  //
      {"40M", "7.0 Mhz"},   {"7", "7.0 Mhz"},                                            //
      {"30M", "10 Mhz"},    {"10", "10 Mhz"},                                            //
      {"20M", "14 Mhz"},    {"14", "14 Mhz"},                                            //
      {"17M", "18 Mhz"},    {"18", "18 Mhz"},                                            //
      {"15M", "21 Mhz"},    {"21", "21 Mhz"},                                            //
      {"12M", "24 Mhz"},    {"24", "24 Mhz"},                                            //
      {"10M", "28 Mhz"},    {"28", "28 Mhz"},                                            //
      {"6M", "50 Mhz"},     {"50", "50 Mhz"},                                            //
      {"2M", "144 Mhz"},    {"144", "144 Mhz"},  {"145", "144 Mhz"},                     //
      {"70CM", "432 Mhz"},  {"432", "432 Mhz"},                                          //
      {"23CM", "1.3 Ghz"},  {"1300", "1.3 Ghz"},                                         //
      {"13CM", "2.3 Ghz"},  {"2300", "2.3 Ghz"},                                         //
      {"6CM", "5.7 Ghz"},   {"5660", "5.7 Ghz"}, {"5700", "5.7 Ghz"},                    //
      {"3CM", "10 Ghz"},    {"10000", "10 Ghz"},                                         //
      {"1.25CM", "24 Ghz"}, {"24000", "24 Ghz"},
  };
  const auto place = std::find_if(std::begin(kTable), std::end(kTable),
                                  [&](const Ligne_Table& ligne) { return ligne.valeur == valeur; });
  return place == std::end(kTable) ? std::string_view{} : place->bande;
}

}  // namespace vorelio
