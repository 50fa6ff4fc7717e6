#include "exchange/import_journal_window.h"

#include <functional>
#include <string_view>
#include <utility>
#include <vector>

#include "core/errors.h"
#include "core/text.h"
#include "exchange/adif_export.h"
#include "exchange/award_export_window.h"
#include "exchange/journal_files.h"
#include "forms/clock_text.h"
#include "forms/main_window.h"
#include "maintenance/rebuild.h"
#include "qsl/multi_qsl_window.h"
#include "qsl/qsl_window.h"
#include "stations/log_file.h"
#include "stations/log_guard.h"

namespace vorelio {

using namespace Sous_Programmes;

namespace {

constexpr const char* kTitre = "Importer le journal d'un autre logiciel";
constexpr std::string_view kFiltre = "Journaux|*.adi;*.adif;*.edi";

/// The largest number that a line of the list has room for.
constexpr std::size_t kQSO_Max = 99999;

std::size_t Empreinte(std::string_view texte) { return std::hash<std::string_view>{}(texte); }

/// The window was closed while the file was being read.
class Abandon {};

void Montre_Nombre(Label& label, std::size_t nombre) { label.SetCaption(std::to_string(nombre)); }

/// Place, callsign and reason in the columns of their titles.
std::string Ligne_Refus(const QSO_Refuse& refus) {
  constexpr std::size_t kPlace = 28, kIndicatif = 14;
  const auto colonne = [](std::string texte, std::size_t largeur) {
    if (texte.size() > largeur - 2) texte = texte.substr(0, largeur - 3) + "…"_t;
    texte.resize(largeur, ' ');
    return texte;
  };
  return colonne("Fiche " + std::to_string(refus.numero) + ", ligne " + std::to_string(refus.place), kPlace) +
         colonne(refus.indicatif, kIndicatif) + refus.raison;
}

}  // namespace

Import_Journal::Import_Journal(Programme& programme) : Form(programme, "Import_Journal", kTitre) {
  Doubles.Click = [this] { Montre_Apercu(); };
  Importer.Click = [this] { Importer_Click(); };
  Quitter.Click = [this] { Unload(); };
}

// --- Reading --------------------------------------------------------------------------------------------------------

std::string Import_Journal::Ouvre(const std::string& fichier) {
  fichier_ = fichier;
  std::string probleme;
  ShowModal([&] {
    probleme = Lit();
    if (!probleme.empty()) Unload();
  });
  return probleme;
}

std::string Import_Journal::Lit() {
  EnableAll({&Doubles, &Confirmations, &Importer}, false);
  Avance.SetVisible(true);
  std::string octets;
  try {
    if (programme_.Disque().Size(fichier_) > kTaille_Max_Journal) return Journal_Trop_Long() + "\r\n" + fichier_;
    octets = programme_.Disque().ReadAll(fichier_);
  } catch (const Erreur_Execution& erreur) {
    return Phrase_Erreur("Le fichier n'a pas pu être lu"_t, erreur);
  }
  try {
    Journal_Lu journal = Lit_Journal(octets, Contexte_Du_Journal(programme_),
                                     [this](std::size_t fait, std::size_t total) { Montre_Avance(fait, total); });
    if (!journal.illisible.empty()) return journal.illisible + "\r\n" + fichier_;
    Montre_Fichier(journal);
    // Long files are longer than what becomes of them: they don't stay in memory beside it.
    journal.refuses.clear();
    std::string().swap(octets);
    Compare(std::move(journal.qso));
  } catch (const Erreur_Execution& erreur) {
    return Phrase_Erreur("Le log de la station n'a pas pu être lu"_t, erreur);
  } catch (const Abandon&) {
  }
  return {};
}

void Import_Journal::Montre_Avance(std::size_t fait, std::size_t total) {
  Avance.SetProgress(static_cast<int>(fait), static_cast<int>(total));
  programme_.Traite_Evenements();
  if (Unloaded()) throw Abandon{};
}

// --- Showing --------------------------------------------------------------------------------------------------------

void Import_Journal::Montre_Fichier(const Journal_Lu& journal) {
  SetTitle(kTitre + std::string(" : ") + Nom_De_Fichier(programme_, fichier_));
  Format.SetCaption(journal.format);
  Montre_Nombre(Nb_Lus, journal.Lus());
  nb_refuses_ = journal.refuses.size();
  Montre_Nombre(Nb_Refuses, nb_refuses_);
  refuses_ = Fichier_Refuses(journal);
  std::vector<std::string> lignes;
  for (const QSO_Refuse& refuse : journal.refuses) lignes.push_back(Ligne_Refus(refuse));
  Liste_Refus.ClearItems();
  Liste_Refus.AddItems(std::move(lignes));
}

void Import_Journal::Compare(std::vector<QSO_Lu> qso) {
  const std::string log = Texte_Log(programme_);
  empreinte_ = Empreinte(log);
  const std::string aujourdhui =
      programme_.Principale().Saisie_En_UTC() ? Date_UTC(programme_) : Date_Locale(programme_);
  plan_.emplace(std::move(qso), log, aujourdhui);
  Montre_Nombre(Nb_Nouveaux, plan_->Nouveaux());
  Montre_Nombre(Nb_Doubles, plan_->Doubles());
  Montre_Nombre(Nb_Confirmes, plan_->Confirmes());
  Montre_Nombre(Nb_Coupes, plan_->Coupes());
  Montre_Apercu();
  Avance.SetVisible(false);
  EnableAll({&Doubles, &Confirmations, &Importer}, true);
}

void Import_Journal::Montre_Apercu() {
  std::vector<std::string> lignes;
  for (const Ligne_A_Placer& a_placer : plan_->Lignes(Doubles.Checked())) lignes.emplace_back(a_placer.ligne);
  Liste_Apercu.ClearItems();
  Liste_Apercu.AddItems(std::move(lignes));
}

// --- Importing ------------------------------------------------------------------------------------------------------

bool Import_Journal::Trop_De_QSO(std::string_view log) {
  const std::size_t total =
      static_cast<std::size_t>(Nombre_De_Lignes(log)) + static_cast<std::size_t>(Liste_Apercu.Count());
  if (total <= kQSO_Max) return false;
  programme_.Message("Le log aurait "_t + std::to_string(total) + " QSO, et il peut en compter "_t +
                     std::to_string(kQSO_Max) + " au plus.\r\nRien n'a été importé."_t);
  return true;
}

std::string Import_Journal::Remplace(std::string_view log) {
  static const Lignes_Changees kAucune;
  const std::string chemin = programme_.Chemin_Log(programme_.contexte.Station_Indicatif);
  const std::string nouveau =
      Log_Fusionne(log, plan_->Lignes(Doubles.Checked()), Confirmations.Checked() ? plan_->Confirmees() : kAucune);
  std::string garde = Garde_Log(programme_, chemin);
  // It has been kept: once is enough.
  Note_Log(programme_, chemin);
  Remplace_Log(programme_, chemin, nouveau);
  return garde;
}

void Import_Journal::Importer_Click() {
  std::string garde;
  const std::size_t ajoutes = static_cast<std::size_t>(Liste_Apercu.Count());
  const bool reporte = Confirmations.Checked() && plan_->Confirmes() > 0;
  try {
    const std::string log = Texte_Log(programme_);
    if (Empreinte(log) != empreinte_) return Relit();
    if (Trop_De_QSO(log)) return;
    // The preview isn't looked at any more, and it is as large as the log that is made here.
    Liste_Apercu.ClearItems();
    if (ajoutes > 0 || reporte) garde = Remplace(log);
  } catch (const Erreur_Execution& erreur) {
    Montre_Apercu();
    return programme_.Message(Phrase_Erreur("Rien n'a été importé"_t, erreur));
  }
  Termine_Import(garde, ajoutes);
}

/// Somebody else has written the log: what was shown no longer holds.
void Import_Journal::Relit() {
  const std::string probleme = Lit();
  if (Unloaded()) return;
  programme_.Message(probleme.empty() ? "Le log a changé depuis la lecture du fichier. Les comptes ont été refaits : "
                                        "vérifiez-les avant d'importer."_t
                                      : probleme);
}

void Import_Journal::Termine_Import(const std::string& garde, std::size_t ajoutes) {
  std::string dit = "Import : " + Compte(ajoutes, "QSO ajouté"_t, "QSO ajoutés"_t);
  if (Confirmations.Checked() && plan_->Confirmes() > 0)
    dit += ", " + Compte(plan_->Confirmes(), "QSL reportée"_t, "QSL reportées"_t);
  if (!Doubles.Checked() && plan_->Doubles() > 0)
    dit += ", " + Compte(plan_->Doubles(), "double laissé"_t, "doubles laissés"_t);
  std::vector<std::string> echecs;
  const auto essaie = [&](const std::string& phrase, const auto& etape) {
    try {
      etape();
    } catch (const Erreur_Execution& erreur) {
      echecs.push_back(Phrase_Erreur(phrase, erreur));
    }
  };
  if (nb_refuses_ > 0) {
    dit += ", " + Compte(nb_refuses_, "refusé"_t, "refusés"_t);
    essaie("Les fiches refusées n'ont pas pu être écrites"_t, [&] {
      const std::string fichier = Nom_Fichier_Refuses(programme_, fichier_);
      programme_.Disque().WriteAll(fichier, refuses_);
      dit += " (" + Nom_De_Fichier(programme_, fichier) + ")";
    });
  }
  if (!garde.empty()) {
    dit += " ; log d'avant : " + Nom_De_Fichier(programme_, garde);
    essaie("Les QSO sont dans le log, mais les tableaux n'ont pas pu être refaits (menu Outils)"_t,
           [&] { Refait_Pointages(programme_); });
  }
  // What they show goes by the selected line or its number, which are others now.
  if (auto* cartes = programme_.Ouverte<Multi_QSL>()) cartes->Unload();
  if (auto* carte = programme_.Ouverte<QSL>()) carte->Unload();
  if (auto* export_qso = programme_.Ouverte<Exporter_QSO>()) export_qso->Unload();
  plan_.reset();
  Unload();

  auto& principale = programme_.Principale();
  if (!garde.empty()) {
    Charge_Log(programme_, programme_.contexte.Station_Indicatif);
    principale.Journal().SetListIndex(principale.Journal().Count() - 1);
    principale.Repeint_Grille();
  }
  principale.Dit(dit);
  for (const std::string& echec : echecs) programme_.Message(echec);
}

namespace Sous_Programmes {

void Importe_Journal(Programme& programme) {
  if (!Pret_Pour_Un_Journal(programme)) return;
  const std::string fichier = programme.Choisit_Fichier(std::string(kFiltre));
  if (fichier.empty()) return;
  const std::string probleme = programme.Fenetre<Import_Journal>().Ouvre(fichier);
  if (!probleme.empty()) programme.Message(probleme);
}

}  // namespace Sous_Programmes

}  // namespace vorelio
