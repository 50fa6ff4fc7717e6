#include "printing/label_lines.h"

#include "core/log_line.h"
#include "core/text.h"

namespace vorelio {

namespace {

/// References of activations are of twelve characters at most; what follows them in the log isn't for the card.
constexpr Champ kReference{champs::QTH_A.colonne, 12, 0};

/// Width of the lines below the first one, and the blanks between a left label and its neighbour.
constexpr int kLargeur = 42;
constexpr int kEcart = 2;

/// How a line is centred: its width, and the characters that its fixed words count for. For some lines that isn't
/// their true length: sheets were tuned with it.
struct Cadre {
  int largeur;
  int mots;
  int ecart;
};

std::string Centre(const std::string& texte, std::size_t variables, const Cadre& cadre, Cote cote) {
  const int reste = cadre.largeur - static_cast<int>(variables) - cadre.mots;
  // Rounded down, so that a text with one character too many fails as well.
  const std::string marge = Blancs(reste < 0 ? -1 : reste / 2);
  return marge + texte + marge + Blancs(cote == Cote::Gauche ? cadre.ecart : 0);
}

std::string Remerciement(const Contact_Etiquette& contact, const std::string& station, Type_Etiquette type, Cote cote) {
  if (type == Type_Etiquette::QSO)
    return Centre("Merci Pour le QSO   73's de " + station, station.size(), {kLargeur, 28, 3}, cote);
  const std::string texte = "Merci Pour le " + std::string(contact.reference);
  return Centre(texte + (cote == Cote::Gauche ? " 73's" : "  73's"), contact.reference.size(), {kLargeur, 20, kEcart},
                cote);
}

}  // namespace

Contact_Etiquette Lit_Contact(std::string_view ligne_liste) {
  const auto lit = [&](const Champ& champ) { return Lit_Liste(ligne_liste, champ); };
  return {lit(champs::Date_A), lit(champs::Debut_A), lit(champs::Indicatif_A), lit(champs::RSTR_A),
          lit(champs::Mode_A), lit(champs::Bande_A), lit(kReference)};
}

Lignes_Etiquette Compose_Etiquette(const Contact_Etiquette& contact, const Textes_Etiquette& textes,
                                   Type_Etiquette type, Cote cote, const Titre_Etiquette& titre) {
  const std::string station(Rogne(textes.station)), emetteur(Rogne(textes.emetteur)), antenne(Rogne(textes.antenne));
  const std::string date(contact.date), heure(contact.heure), indicatif(contact.indicatif), report(contact.report),
      mode(contact.mode), bande(contact.bande);
  const int mots_titre = cote == Cote::Gauche ? 11 : titre.mots_droite;
  return {Centre("De " + station + "   pour " + indicatif, station.size() + indicatif.size(),
                 {titre.largeur, mots_titre, titre.ecart}, cote),
          Centre("Date " + date + "  QTR " + heure, date.size() + heure.size(), {kLargeur, 11, kEcart}, cote),
          Centre("QRG " + bande + "  RST " + report + "  Mode " + mode, bande.size() + report.size() + mode.size(),
                 {kLargeur, 17, kEcart}, cote),
          Centre("TX " + emetteur + "  Ant " + antenne, emetteur.size() + antenne.size(), {kLargeur, 9, kEcart}, cote),
          Remerciement(contact, station, type, cote)};
}

}  // namespace vorelio
