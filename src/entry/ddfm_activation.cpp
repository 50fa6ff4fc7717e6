#include <array>
#include <string_view>

#include "core/text.h"
#include "entry/ddfm.h"
#include "forms/clock_text.h"

namespace vorelio {

using namespace Sous_Programmes;

namespace {

/// A kind of reference: what a choice of the activity writes into the form, and what its number must be like.
struct Reference {
  std::string_view activite;
  std::string_view prefixe;  ///< Start of `QTH_A`.
  int curseur;               ///< Characters before the caret, after the prefix.
  std::string_view debut;    ///< Start of `Remarques_A`; empty: it stays as it is.
  std::size_t longueur = 0;  ///< Of `QTH_A` at the end; 0: only the general limit.
  int departement = 0;       ///< Column of `QTH_A` at which the department of the contact stands; 0: none.
  std::string_view exemple = {};
};

constexpr std::array<Reference, 17> kReferences = {{
    {"DFCF", "DFCF ", 5, "C. ", 10, 6, "DFCF 89125"},
    {"DMF", "DMF ", 4, "M. ", 9, 5, "DMF 59025"},
    {"DIFI", "DIFI ", 5, "I. ", 11, 6, "DIFI 55012R"},
    {"DIFM", "DIFM ", 5, "I. "},
    {"DPLF", "DPLF ", 5, "P. ", 10, 0, "DPLF PB141"},
    {"ARLH", "ARLH ", 5, "P. ", 11, 0, "ARLH FRA373"},
    {"IOTA", "IOTA ", 5, "I. ", 10, 0, "IOTA EU064"},
    {"BCA", "BCA ", 4, "C. ", 9, 0, "BCA LG060"},
    {"DCI", "DCI ", 4, "C. ", 9, 0, "DCI IM122"},
    {"DCS", "DCS ", 4, "C. "},
    {"CASHOTA", "CASHOTA ", 8, "C. "},
    {"ARP", "ARP ", 4, ""},
    {"DLI", "DLI ", 4, "L. "},
    {"WIM", "WIM ", 4, "M. "},
    {"WAB", "WAB ", 4, ""},
    {"WASL", "WASL ", 5, "L. "},
    {"DAI", "DAI ", 4, "A. ", 10, 0, "DAI PM0571"},
}};

const Reference* Cherche_Reference(std::string_view activite) {
  for (const Reference& reference : kReferences)
    if (reference.activite == activite) return &reference;
  return nullptr;
}

}  // namespace

void DDFM::Date_Et_Heure_Du_Moment() {
  const bool utc = Mnu_UTC_Oui.Checked();
  Date_A.SetText(utc ? Date_UTC(programme_) : Date_Locale(programme_));
  Debut_A.SetText((utc ? Heure_UTC(programme_) : Heure_Locale(programme_)).substr(0, 5));
}

// It doesn't ask whether a contact is being edited: an edit in automatic date mode takes the present moment, and the
// prefix and stub of the activity.
void DDFM::Activ_A_KeyPress(int& touche) {
  if (touche != kEntree) return;
  if (Mnu_Auto_Oui.Checked()) {
    Date_Et_Heure_Du_Moment();
    Avance(Activ_A, RSTE_A);
    RSTE_A.SetCaret(3);
  } else {
    Avance(Activ_A, Date_A);
  }

  if (const Reference* reference = Cherche_Reference(Activ_A.Text())) {
    QTH_A.SetText(reference->prefixe);
    QTH_A.SetCaret(reference->curseur);
    if (!reference->debut.empty()) {
      Remarques_A.SetText(reference->debut);
      Remarques_A.SetCaret(3);
    }
  } else {
    QTH_A.Clear();
  }
  programme_.reglages.Ecrit_Station("Activite", Texte_Nombre(Activ_A.ListIndex()));
}

bool DDFM::Reference_Bonne() {
  const Reference* reference = Cherche_Reference(Activ_A.Text());
  if (!reference || reference->longueur == 0) return true;
  const std::string activite(reference->activite);
  if (QTH_A.Text().size() != reference->longueur) {
    programme_.Message("Attention " + std::to_string(reference->longueur) + " caracteres pour le " + activite +
                       " ex '" + std::string(reference->exemple) + "'");
    return false;
  }
  if (reference->departement != 0 && Coupe(QTH_A.Text(), reference->departement, 2) != Depart_A.Text()) {
    programme_.Message("Le n° du "_t + activite + " ne correspond pas au n° du departement"_t);
    return false;
  }
  return true;
}

}  // namespace vorelio
