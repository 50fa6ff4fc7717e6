#include "printing/labels_window.h"

#include "core/text.h"
#include "printing/select_qso_window.h"

namespace vorelio {

namespace {

constexpr const char* kPolice = "Courier New";

/// The example on the window: a contact that never was.
void Montre_Exemple(const ControlArray<Label>& lignes, Type_Etiquette type) {
  const Contact_Etiquette contact{"12/05/03", "14:32", "F9ABC", "59", "SSB", "144 Mhz", "DFCF 33012"};
  const Textes_Etiquette textes{"F9QZX_P", "FT-847", "9 elements"};
  const Lignes_Etiquette exemple = Compose_Etiquette(contact, textes, type, Cote::Droite, kFeuilles[0].titre);
  for (int i = 0; i < lignes.Count(); ++i) lignes(i).SetCaption(Rogne(exemple[static_cast<std::size_t>(i)]));
}

}  // namespace

Etiquettes::Etiquettes(Programme& programme)
    : Form(programme, "Etiquettes", "Impression étiquettes"_t),
      Type_1(*this, "Type_1", "Etiquette en confirmation d'un QSO avec une activation", "Type", true),
      Type_2(*this, "Type_2", "Etiquette en confirmation d'un QSO ", "Type"),
      Etiqu_1(*this, "Etiqu_1", "AVERY L7162                99.1 x 33.9     16 Etiquettes", "Etiqu", true),
      Etiqu_2(*this, "Etiqu_2", "DECADRY OLW 4732       99.1 x 34     16 Etiquettes", "Etiqu"),
      Etiqu_3(*this, "Etiqu_3", "AVERY DP 167                  105 x 37      16 Etiquettes", "Etiqu"),
      Etiqu_4(*this, "Etiqu_4", "DECADRY DLW 1799        105 x 35      16 Etiquettes", "Etiqu"),
      Arret_Imp(*this, "Arret_Imp", "Arret impression a chaque feuille"),
      Frame3(*this, "Frame3", "Exemple d'étiquette avec une activation"_t),
      Frame4(*this, "Frame4", "Exemple d'étiquette sans activation"_t) {
  Imprime.Click = [this] { Imprime_Click(); };
}

void Etiquettes::Form_Load() {
  Centre();
  RxTx.SetText(programme_.reglages.Station("Transceiver", ""));
  Antenne.SetText(programme_.reglages.Station("Antenne", ""));
  Montre_Exemple(Exemple_1, Type_Etiquette::Activation);
  Montre_Exemple(Exemple_2, Type_Etiquette::QSO);
}

void Etiquettes::Form_Unload() {
  if (auto* selection = programme_.Ouverte<Select_QSO>()) selection->Unload();
}

void Etiquettes::Imprime_Click() {
  if (RxTx.Text().size() > 15) return programme_.Message("15 caracteres maxi");
  if (Antenne.Text().size() >= 14) return programme_.Message("13 caracteres maxi");
  programme_.reglages.Ecrit_Station("Transceiver", RxTx.Text());
  programme_.reglages.Ecrit_Station("Antenne", Antenne.Text());

  PrinterService& imprimante = programme_.plateforme.printer;
  imprimante.Choose();
  const PrinterFont ancienne = imprimante.Font();
  imprimante.SetFont({kPolice, ancienne.size, ancienne.bold});
  programme_.contexte.Nb_Contactes = 0;
  Imprime_Selection();
  // Rows that still are on the printer are a sheet too.
  if (programme_.contexte.Nb_Contactes == 0)
    imprimante.DiscardJob();
  else
    imprimante.EndJob();
  imprimante.SetFont({ancienne.name, ancienne.size, imprimante.Font().bold});
}

void Etiquettes::Imprime_Selection() {
  const auto* selection = programme_.Ouverte<Select_QSO>();
  if (!selection) return;
  const ListBox& liste = selection->Liste_Imprime;
  const Feuille& feuille = Feuille_Choisie();
  const Type_Etiquette type = Type_1.Set() ? Type_Etiquette::Activation : Type_Etiquette::QSO;
  const Textes_Etiquette textes{programme_.contexte.Station_Indicatif, RxTx.Text(), Antenne.Text()};
  // The count of departments has nothing to do with labels; the grid counts anew when it is painted.
  int& rangees = programme_.contexte.Nb_Contactes;
  for (int i = 0; i < liste.Count(); i += 2) {
    const auto compose = [&](int place, Cote cote) {
      return Compose_Etiquette(Lit_Contact(liste.Item(place)), textes, type, cote, feuille.titre);
    };
    Imprime_Lignes(Compose_Rangee(feuille, rangees == 0, compose(i, Cote::Gauche), compose(i + 1, Cote::Droite)));
    ++rangees;
    if (rangees < kRangees) {
      Imprime_Lignes({Entre_Rangees(feuille)});
      continue;
    }
    if (Arret_Imp.Checked() && !programme_.Question(Blancs(feuille.blancs_question) + "Page suivante ?")) return;
    programme_.plateforme.printer.EndJob();
    rangees = 0;
  }
}

void Etiquettes::Imprime_Lignes(const std::vector<Ligne_Papier>& lignes) const {
  PrinterService& imprimante = programme_.plateforme.printer;
  for (const Ligne_Papier& ligne : lignes) {
    imprimante.SetFont({kPolice, static_cast<double>(ligne.corps), ligne.gras});
    imprimante.PrintLine(ligne.texte);
  }
}

const Feuille& Etiquettes::Feuille_Choisie() const {
  const OptionButton* modeles[] = {&Etiqu_1, &Etiqu_2, &Etiqu_3, &Etiqu_4};
  std::size_t choisie = 0;
  while (choisie + 1 < kFeuilles.size() && !modeles[choisie]->Set()) ++choisie;
  return kFeuilles[choisie];
}

}  // namespace vorelio
