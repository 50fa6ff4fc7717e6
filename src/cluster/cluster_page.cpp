#include "cluster/cluster_page.h"

#include <algorithm>

#include "core/errors.h"

namespace vorelio {

namespace {

constexpr int kLignes_Titre = 7;
constexpr int kLargeur_DX = 12, kLargeur_QRG = 8, kLargeur_Spotter = 11;

constexpr std::string_view kDebut_Table = "<TABLE>", kFin_Table = "</TABLE>";

/// Where a field stands in its line: after `debut`, up to `fin`. `ecart` is how far after the place of `debut` it
/// starts, `retrait` what is taken off the distance of the two marks to give its length.
struct Reperes {
  std::string_view debut, fin;
  int ecart, retrait;
};

constexpr Reperes kDX = {"_BLANK", "</A>", 8, 8};
// The character in front of "&NBSP" is no part of the frequency.
constexpr Reperes kQRG = {"RIGHT", "&NBSP", 7, 8};
constexpr Reperes kDate = {"LEFT", "&NBSP", 7, 7};
constexpr Reperes kSpotter = {"_BLANK", "</A>", 8, 8};
constexpr Reperes kRemarques = {"LEFT", "</TD>", 7, 7};

/// The 1-based place of a mark, 0 where there is none.
int Place(std::string_view ligne, std::string_view repere) {
  const auto place = ligne.find(repere);
  return place == std::string_view::npos ? 0 : static_cast<int>(place) + 1;
}

/// A missing first mark counts as one in front of the line; only a length that turns negative fails.
std::string_view Champ(std::string_view ligne, const Reperes& reperes) {
  const int debut = Place(ligne, reperes.debut);
  return Coupe(ligne, debut + reperes.ecart, Place(ligne, reperes.fin) - (debut + reperes.retrait));
}

}  // namespace

// --- The site -------------------------------------------------------------------------------------------------------

std::string Chemin_De_Page(int bande) {
  if (bande < 0 || bande >= static_cast<int>(kBandes_Cluster.size()))
    throw Erreur_Execution(Erreur::Indice_Hors_Limites);
  const Bande_Cluster& choisie = kBandes_Cluster[static_cast<std::size_t>(bande)];
  return choisie.toutes ? std::string("/dxc/top_250_") + choisie.mot + ".html"
                        : std::string("/dxc/top_50_") + choisie.mot + "_MHz.html";
}

std::string Adresse_Complete(std::string_view adresse) {
  std::string_view propre = Rogne(adresse);
  while (propre.ends_with('/')) propre.remove_suffix(1);
  if (propre.empty() || propre.find("://") != std::string_view::npos) return std::string(propre);
  return std::string("http://").append(propre);
}

// --- The page's text ------------------------------------------------------------------------------------------------

std::string Premiere_Ligne(std::string texte) {
  texte.resize(std::min(texte.find('\r'), texte.size()));
  return texte;
}

std::string Fins_De_Ligne(std::string_view texte) {
  std::string lignes;
  lignes.reserve(texte.size() + static_cast<std::size_t>(std::count(texte.begin(), texte.end(), '\n')) +
                 kFin_De_Ligne.size());
  for (const char caractere : texte) {
    if (caractere == '\n') lignes += '\r';
    lignes += caractere;
  }
  return lignes.append(kFin_De_Ligne);
}

// --- Rows -----------------------------------------------------------------------------------------------------------

Lecteur_Spots::Lecteur_Spots(std::string_view texte) : lignes_(texte) {
  while (!dans_table_ && !lignes_.Fini()) dans_table_ = lignes_.Suivante() == kDebut_Table;
  if (!dans_table_) return;
  for (int i = 0; i < kLignes_Titre; ++i) lignes_.Suivante();
}

std::optional<Spot> Lecteur_Spots::Suivant() {
  if (!dans_table_ || lignes_.Fini() || lignes_.Suivante() == kFin_Table) {
    // Only the first table counts.
    dans_table_ = false;
    return std::nullopt;
  }
  Spot spot;
  spot.DX = Complete(Champ(lignes_.Suivante(), kDX).substr(0, kLargeur_DX), kLargeur_DX);
  spot.QRG = Complete_Gauche(Champ(lignes_.Suivante(), kQRG), kLargeur_QRG);
  spot.Date = Champ(lignes_.Suivante(), kDate);
  spot.Spotter = Complete(Champ(lignes_.Suivante(), kSpotter), kLargeur_Spotter);
  spot.Remarques = Champ(lignes_.Suivante(), kRemarques);
  lignes_.Suivante();
  return spot;
}

// --- List lines -----------------------------------------------------------------------------------------------------

std::string Ligne_De_Liste(const Spot& spot, Tri tri) {
  const std::string* ordre[] = {&spot.Date, &spot.DX, &spot.QRG, &spot.Spotter, &spot.Remarques};
  if (tri != Tri::QTR) std::rotate(ordre, ordre + 1, ordre + 3);
  if (tri == Tri::QRG) std::swap(ordre[0], ordre[1]);
  std::string ligne;
  for (const std::string* champ : ordre) ligne.append(1, ' ').append(*champ);
  return ligne;
}

std::string_view Entete_Liste(Tri tri) {
  switch (tri) {
    case Tri::QTR:
      return "    Date   QTR(TU)          DX                                  QRG      Spotter                         "
             "                        Remarques";
    case Tri::Indicatif:
      return "       DX                                  QRG      Date   QTR(TU)       Spotter                         "
             "                        Remarques";
    case Tri::QRG: break;
  }
  return "            QRG         DX                          Date   QTR(TU)       Spotter                             "
         "                    Remarques";
}

std::string_view Entete_Memoire(Tri tri) {
  switch (tri) {
    case Tri::QTR:
      return "    QTR                DX                QRG   Spotter                       Remarques        ";
    case Tri::Indicatif:
      return "     DX               QRG        QTR          Spotter                       Remarques        ";
    case Tri::QRG: break;
  }
  return "     QRG     DX                  QTR           Spotter                       Remarques        ";
}

}  // namespace vorelio
