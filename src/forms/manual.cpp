#include "forms/manual.h"

#include "core/text.h"

namespace vorelio::Sous_Programmes {

void Ouvre_Mode_Emploi(Programme& programme, const std::string& chapitre) {
  const std::string separateur(1, programme.plateforme.separator);
  const std::string manuel = programme.Chemin("manuel" + separateur + "index.html");
  if (!programme.plateforme.documents.Open(manuel, chapitre))
    programme.Message("Le mode d'emploi n'a pas pu être ouvert. Il est dans le fichier :\r\n"_t + manuel);
}

}  // namespace vorelio::Sous_Programmes
