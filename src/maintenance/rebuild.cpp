#include "maintenance/rebuild.h"

#include <functional>
#include <string>
#include <utility>

#include "core/bands.h"
#include "core/errors.h"
#include "core/log_line.h"
#include "core/text.h"
#include "forms/main_window.h"
#include "maintenance/progress_window.h"
#include "maps/tally_painting.h"
#include "stations/log_file.h"
#include "stations/station_files.h"
#include "tallies/department_tally.h"
#include "tallies/locator_tally.h"
#include "tallies/prefix_tally.h"
#include "tallies/tally_file.h"
#include "tallies/tally_table.h"

namespace vorelio::Sous_Programmes {

namespace {

std::string_view Cle_Departement(std::string_view ligne) { return Rogne(Coupe(ligne, 1, 2)); }
std::string_view Cle_Locator(std::string_view ligne) { return Rogne(Coupe(ligne, 1, 4)); }

/// A tally in memory while a rebuild runs: written before somebody else gets a turn, read again after it.
class Pointage_Tenu {
 public:
  Pointage_Tenu(Programme& programme, std::string_view suite, Table_Pointage::Cle_De cle_de)
      : chemin_(programme.Chemin_Station(suite)),
        temporaire_(programme.Chemin("Temporaire.txt")),
        disk_(programme.Disque()),
        cle_de_(cle_de),
        table_(disk_.ReadAll(chemin_), cle_de),
        tenue_(programme, [this] { Ecrit(); }) {}

  Table_Pointage& Table() { return table_; }

  /// A log line has been run through: the file is to be rewritten.
  void Reecrit() { tenue_.Modifie(); }
  /// Runs `travail`; then, also if it fails, the file is written.
  void Pendant(const std::function<void()>& travail) { tenue_.Pendant(travail); }

  /// After events have been served. Whether somebody else has had a turn.
  bool Relit_Si_Interrompu() {
    const bool interrompu = tenue_.Interrompue();
    if (interrompu) table_ = Table_Pointage(disk_.ReadAll(chemin_), cle_de_);
    return interrompu;
  }

  /// What a rewriting leaves that fails at the line `indice`: the tally as it was, the temporary file up to there.
  [[noreturn]] void Echoue(int indice) {
    tenue_.Depose();
    disk_.WriteAll(temporaire_, table_.Texte_Avant(indice));
    throw Erreur_Execution(Erreur::Argument_Invalide, chemin_);
  }

 private:
  void Ecrit() const {
    disk_.WriteAll(temporaire_, table_.Texte());
    Prend_Temporaire(disk_, chemin_, temporaire_);
  }

  std::string chemin_;
  std::string temporaire_;
  Disk& disk_;
  Table_Pointage::Cle_De cle_de_;
  Table_Pointage table_;
  Tenue tenue_;
};

/// Puts the template in the tally's place: all work so far is gone from here on. Gives the log's text.
std::string Commence(Programme& programme, std::string_view suite) {
  programme.Disque().Copy(programme.Chemin_Modele(suite), programme.Chemin_Station(suite));
  return Texte_Log(programme);
}

/// Whether a rebuild tells how far it has come, with the events served, or does its work in one go.
enum class Facon { Montree, Muette };

/// Runs the log through the tally, line by line.
void Parcourt(Programme& programme, Facon facon, std::string_view log, std::string_view suite,
              Table_Pointage::Cle_De cle_de, const std::function<void(Pointage_Tenu&, std::string_view ligne)>& etape) {
  if (facon == Facon::Muette) {
    Pointage_Tenu pointage(programme, suite, cle_de);
    return pointage.Pendant([&] {
      for (Lecteur_Lignes lignes(log); !lignes.Fini();) etape(pointage, lignes.Suivante());
    });
  }
  const std::string lecture = "Lecture du log ligne n°  "_t;
  const int total = Compte_Lignes(log);
  int n = 1;
  std::string texte;
  auto* progression = &programme.Fenetre<Progression>();
  const auto annonce = [&] {
    progression->Label3.SetCaption(texte.assign(lecture).append(std::to_string(n)));
    progression->Avance.SetProgress(n - 1, total);
  };
  progression->Show();
  annonce();

  Pointage_Tenu pointage(programme, suite, cle_de);
  pointage.Pendant([&] {
    for (Lecteur_Lignes lignes(log); !lignes.Fini();) {
      etape(pointage, lignes.Suivante());
      ++n;
      annonce();
      programme.Traite_Evenements();
      // The window may have been closed: another one then tells the rest.
      if (pointage.Relit_Si_Interrompu()) progression = &programme.Fenetre<Progression>();
    }
  });
}

void Annonce_La_Fin(Programme& programme) {
  programme.Fenetre<Progression>().Label3.SetCaption("Mise a jour terminée"_t);
}

std::string Boite(const std::string& nom) {
  return "Le fichier " + nom + " va etre mis a jour a partir du fichier log";
}

/// The callsigns of unknown prefix, held like the tally.
class Liste_Absents {
 public:
  Liste_Absents(Programme& programme, const std::string& chemin)
      : tenue_(programme,
               [this, &disk = programme.Disque(), chemin] { disk.Append(chemin, std::exchange(texte_, {})); }) {
    programme.Disque().WriteAll(chemin, "");
  }

  void Note_Absent(std::string_view indicatif) {
    texte_.append(indicatif).append(kFin_De_Ligne);
    tenue_.Modifie();
  }

  void Pendant(const std::function<void()>& travail) { tenue_.Pendant(travail); }

 private:
  std::string texte_;
  Tenue tenue_;
};

void Reconstruit_Prefixe(Pointage_Tenu& pointage, Liste_Absents& absents, std::string_view indicatif, int bande,
                         std::string_view etat) {
  const int indice = pointage.Table().Cherche_Debut(indicatif);
  if (indice < 0) absents.Note_Absent(indicatif);
  const int premiere = Colonne_Prefixe(kBandes.front());
  if (indice >= 0 && bande >= 0) pointage.Table().Monte_Code(indice, premiere + bande, etat, premiere);
  pointage.Reecrit();
}

void Reconstruit_Departement(Pointage_Tenu& pointage, std::string_view departement, int bande, std::string_view etat) {
  const int indice = pointage.Table().Cherche(departement);
  if (indice >= 0 && bande < 0) pointage.Echoue(indice);
  const int premiere = Colonne_Departement(kBandes.front());
  if (indice >= 0) pointage.Table().Monte_Code(indice, premiere + bande, etat, premiere);
  pointage.Reecrit();
}

void Reconstruit_Locator(Pointage_Tenu& pointage, std::string_view carre, int bande, std::string_view etat) {
  const int indice = pointage.Table().Cherche(carre);
  const int premiere = Colonne_Locator(kBandes[kBandes_HF]);
  if (indice >= 0 && bande < kBandes_HF) {
    // The reading ends here: a square worked on a band without squares is damage, and what stands below it in the
    // tally isn't trusted.
    pointage.Table().Coupe_A_Partir(indice);
  } else if (indice >= 0) {
    pointage.Table().Monte_Code(indice, premiere + bande - kBandes_HF, etat, premiere);
  }
  pointage.Reecrit();
}

/// The bands from 50 MHz to 10 GHz. Contacts on 24 GHz count only while the form is on that band, and then contacts of
/// any band with a square do: so the operator of that band sees every square he has.
bool Compte_Le_Carre(int bande, const Contexte_Station& contexte) {
  const int derniere = static_cast<int>(kBandes.size()) - 1;
  return (bande >= kBandes_HF && bande < derniere) || contexte.Bande_Courante == kBandes.back();
}

void Vide_Absents(Programme& programme) {
  programme.Disque().Copy(programme.Chemin_Modele(".log"), programme.Chemin_Station(kSuite_Absent));
}

void Reprend_Prefixes(Programme& programme, Facon facon, std::string_view log) {
  // Named after the callsign typed last, not after the station: what was just emptied isn't what gets written, and
  // users have looked for the list under that name.
  Liste_Absents absents(programme, programme.Chemin_De(programme.saisie.Indicatif_Saisi, kSuite_Absent));
  absents.Pendant([&] {
    Parcourt(programme, facon, log, kSuite_Prefixe, Prefixe_De, [&](Pointage_Tenu& pointage, std::string_view ligne) {
      Reconstruit_Prefixe(pointage, absents, Lit_Log(ligne, champs::Indicatif_A),
                          Indice_Bande_Lue(Lit_Log(ligne, champs::Bande_A)), Lit_Log(ligne, champs::Etat_QSL));
    });
  });
}

void Reprend_Departements(Programme& programme, Facon facon, std::string_view log) {
  const auto etape = [facon](Pointage_Tenu& pointage, std::string_view ligne) {
    const int bande = Indice_Bande_Lue(Lit_Log(ligne, champs::Bande_A));
    // Nobody is there who could be told of a line that has no column: it has no department to give either.
    if (bande < 0 && facon == Facon::Muette) return;
    Reconstruit_Departement(pointage, Majuscules(Lit_Log(ligne, champs::Depart_Court)), bande,
                            Lit_Log(ligne, champs::Etat_QSL));
  };
  Parcourt(programme, facon, log, kSuite_Departement, Cle_Departement, etape);
}

void Reprend_Locators(Programme& programme, Facon facon, std::string_view log) {
  Parcourt(programme, facon, log, kSuite_Locator, Cle_Locator, [&](Pointage_Tenu& pointage, std::string_view ligne) {
    const std::string_view carre = Rogne(Coupe(ligne, champs::Locator_A.colonne, 4));
    const int bande = Indice_Bande_Lue(Lit_Log(ligne, champs::Bande_A));
    if (!carre.empty() && Compte_Le_Carre(bande, programme.contexte))
      Reconstruit_Locator(pointage, carre, bande, Lit_Log(ligne, champs::Etat_QSL));
  });
}

}  // namespace

void Refait_Prefixes(Programme& programme) {
  programme.Message(Boite("Prefixe"));
  Vide_Absents(programme);
  Reprend_Prefixes(programme, Facon::Montree, Commence(programme, kSuite_Prefixe));
  Annonce_La_Fin(programme);
}

void Refait_Departements(Programme& programme) {
  programme.Message(Boite("Departement"));
  Reprend_Departements(programme, Facon::Montree, Commence(programme, kSuite_Departement));
  auto& contexte = programme.contexte;
  contexte.Bande_Grille = contexte.Bande_Courante;
  Affiche_Departements(programme, contexte.Bande_Grille, contexte.Nb_Contactes);
  Annonce_La_Fin(programme);
}

void Refait_Locators(Programme& programme) {
  auto& contexte = programme.contexte;
  programme.Message(Boite("Locator"));
  const std::string log = Commence(programme, kSuite_Locator);
  try {
    Reprend_Locators(programme, Facon::Montree, log);
  } catch (const Erreur_Execution& erreur) {
    programme.Message(erreur.Genre() == Erreur::Fichier_Introuvable
                          ? "Fichier FXXXX_Locator.txt Absent du repertoire"
                          : "Erreur N° "_t + Texte_Nombre_Blanc(erreur.Numero()));
    programme.Termine();
    throw Fin_Programme{};
  }
  auto& principale = programme.Principale();
  Affiche_Locators(programme, principale.Bande_Choisie(), principale.Champ_Choisi(), contexte.Nb_Contactes);
  contexte.Bande_Grille = contexte.Bande_Courante;
  Affiche_Departements(programme, contexte.Bande_Grille, contexte.Nb_Contactes);
  Annonce_La_Fin(programme);
}

void Refait_Pointages(Programme& programme) {
  Vide_Absents(programme);
  Reprend_Prefixes(programme, Facon::Muette, Commence(programme, kSuite_Prefixe));
  Reprend_Locators(programme, Facon::Muette, Commence(programme, kSuite_Locator));
  Reprend_Departements(programme, Facon::Muette, Commence(programme, kSuite_Departement));
}

}  // namespace vorelio::Sous_Programmes
