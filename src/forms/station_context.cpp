#include "forms/station_context.h"

#include "core/text.h"

namespace vorelio {

std::string Historique_Revisions() {
  return "12/01/2002  1.0  Journal de trafic, départements contactés\r\n"
         "03/06/2002  1.4  Carrés locator à partir de 50 Mhz\r\n"
         "18/11/2002  2.0  Préfixes contactés par bande\r\n"
         "09/03/2003  2.5  Fichier Nomenclature\r\n"
         "27/09/2003  3.0  Références DFCF, DMF et DIFI\r\n"
         "14/02/2004  3.6  Plusieurs indicatifs de station\r\n"
         "30/10/2004  4.0  Suivi des cartes QSL\r\n"
         "22/05/2005  4.5  Sauvegarde automatique\r\n"
         "11/12/2005  5.0  Liste d'activités libre\r\n"
         "08/10/2006  5.6  Séparateurs automatiques, heure UTC ou locale\r\n"
         "22/11/2026  5.6.9d  Nouvelle présentation, écriture immédiate sur le disque\r\n"_t;
}

}  // namespace vorelio
