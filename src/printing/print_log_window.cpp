#include "printing/print_log_window.h"

#include <string>

#include "core/text.h"
#include "forms/main_window.h"
#include "printing/log_listing.h"

namespace vorelio {

using namespace Sous_Programmes;

Print_Log::Print_Log(Programme& programme) : Form(programme, "Print_Log", "Impression du fichier log") {
  Command2.Click = [this] { Imprime_Log(programme_, programme_.contexte.Station_Indicatif); };
  Command3.Click = [this] { Enregistre_Log_Texte(programme_, programme_.contexte.Station_Indicatif); };
  Command1.Click = [this] { Command1_Click(); };
}

void Print_Log::Command1_Click() {
  const std::string &debut = Debut_Ligne.Text(), &fin = Fin_Ligne.Text();
  if (debut.empty() || fin.empty())
    return programme_.Message("Entrez le N° de la première et de la dernière ligne a imprimer"_t);
  for (const std::string* numero : {&debut, &fin})
    if (numero->find_first_not_of("0123456789") != std::string::npos)
      return programme_.Message("Que des chiffres pour le N° de ligne"_t);
  if (Valeur(debut) < 1) return programme_.Message("Le N° de la ligne de debut d'impression doit etre superieur a 1"_t);
  if (Valeur(fin) > programme_.Principale().Journal().Count())
    return programme_.Message("Le N° de la ligne de fin d'impression n'existe pas"_t);
  // As texts, not as numbers: 9 to 10 is refused, 10 to 9 prints no line. Operators have learnt to write 09.
  if (fin < debut) return programme_.Message(" Le N° de début doit etre anterieur au N° de fin"_t);
  Imprime_Log_Partiel(programme_, programme_.contexte.Station_Indicatif, debut, fin);
  Unload();
}

}  // namespace vorelio
