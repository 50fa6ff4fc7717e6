#include "exchange/adif_enumerations.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <unordered_map>

#include "core/bands.h"
#include "core/log_line.h"
#include "core/text.h"

namespace vorelio {

namespace {

constexpr Bande_ADIF3 kBandes_Norme[] = {
    {"2190M", 0.1357, 0.1378, ""},
    {"630M", 0.472, 0.479, ""},
    {"560M", 0.501, 0.504, ""},
    {"160M", 1.8, 2.0, kBandes[0]},
    {"80M", 3.5, 4.0, kBandes[1]},
    {"60M", 5.06, 5.45, ""},
    {"40M", 7.0, 7.3, kBandes[2]},
    {"30M", 10.1, 10.15, kBandes[3]},
    {"20M", 14.0, 14.35, kBandes[4]},
    {"17M", 18.068, 18.168, kBandes[5]},
    {"15M", 21.0, 21.45, kBandes[6]},
    {"12M", 24.89, 24.99, kBandes[7]},
    {"10M", 28.0, 29.7, kBandes[8]},
    {"8M", 40, 45, ""},
    {"6M", 50, 54, kBandes[9]},
    {"5M", 54.000001, 69.9, ""},
    {"4M", 70, 71, ""},
    {"2M", 144, 148, kBandes[10]},
    {"1.25M", 222, 225, ""},
    {"70CM", 420, 450, kBandes[11]},
    {"33CM", 902, 928, ""},
    {"23CM", 1240, 1300, kBandes[12]},
    {"13CM", 2300, 2450, kBandes[13]},
    {"9CM", 3300, 3500, ""},
    {"6CM", 5650, 5925, kBandes[14]},
    {"3CM", 10000, 10500, kBandes[15]},
    {"1.25CM", 24000, 24250, kBandes[16]},
    {"6MM", 47000, 47200, ""},
    {"4MM", 75500, 81000, ""},
    {"2.5MM", 119980, 123000, ""},
    {"2MM", 134000, 149000, ""},
    {"1MM", 241000, 250000, ""},
    {"SUBMM", 300000, 7500000, ""},
};

/// The submodes of each mode, a blank between them. In names with blanks of their own these are "_".
struct Famille {
  std::string_view mode, sous_modes;
};

constexpr Famille kFamilles[] = {
    {"CHIP", "CHIP64 CHIP128"},
    {"CW", "PCW"},
    {"DIGITALVOICE", "C4FM DMR DSTAR FREEDV M17"},
    {"DOMINO", "DOM-M DOM4 DOM5 DOM8 DOM11 DOM16 DOM22 DOM44 DOM88 DOMINOEX DOMINOF"},
    {"DYNAMIC", "VARA_HF VARA_SATELLITE VARA_FM_1200 VARA_FM_9600"},
    {"HELL", "FMHELL FSKHELL HELL80 HELLX5 HELLX9 HFSK PSKHELL SLOWHELL"},
    {"ISCAT", "ISCAT-A ISCAT-B"},
    {"JT4", "JT4A JT4B JT4C JT4D JT4E JT4F JT4G"},
    {"JT9",
     "JT9-1 JT9-2 JT9-5 JT9-10 JT9-30 JT9A JT9B JT9C JT9D JT9E JT9E_FAST JT9F JT9F_FAST JT9G JT9G_FAST JT9H "
     "JT9H_FAST"},
    {"JT65", "JT65A JT65B JT65B2 JT65C JT65C2"},
    {"MFSK",
     "FSQCALL FST4 FST4W FT4 JS8 JTMS MFSK4 MFSK8 MFSK11 MFSK16 MFSK22 MFSK31 MFSK32 MFSK64 MFSK64L MFSK128 "
     "MFSK128L Q65"},
    {"OLIVIA", "OLIVIA_4/125 OLIVIA_4/250 OLIVIA_8/250 OLIVIA_8/500 OLIVIA_16/500 OLIVIA_16/1000 OLIVIA_32/1000"},
    {"OPERA", "OPERA-BEACON OPERA-QSO"},
    {"PAC", "PAC2 PAC3 PAC4"},
    {"PAX", "PAX2"},
    {"PSK",
     "8PSK125 8PSK125F 8PSK125FL 8PSK250 8PSK250F 8PSK250FL 8PSK500 8PSK500F 8PSK1000 8PSK1000F 8PSK1200F "
     "FSK31 PSK10 PSK31 PSK63 PSK63F PSK63RC10 PSK63RC20 PSK63RC32 PSK63RC4 PSK63RC5 PSK125 PSK125C12 "
     "PSK125RC10 PSK125RC12 PSK125RC16 PSK125RC4 PSK125RC5 PSK250 PSK250C6 PSK250RC2 PSK250RC3 PSK250RC5 "
     "PSK250RC6 PSK250RC7 PSK500 PSK500C2 PSK500C4 PSK500RC2 PSK500RC3 PSK500RC4 PSK800C2 PSK800RC2 PSK1000 "
     "PSK1000C2 PSK1000RC2 PSKAM10 PSKAM31 PSKAM50 PSKFEC31 QPSK31 QPSK63 QPSK125 QPSK250 QPSK500 SIM31"},
    {"QRA64", "QRA64A QRA64B QRA64C QRA64D QRA64E"},
    {"ROS", "ROS-EME ROS-HF ROS-MF"},
    {"RTTY", "ASCI"},
    {"SSB", "LSB USB"},
    {"THOR", "THOR-M THOR4 THOR5 THOR8 THOR11 THOR16 THOR22 THOR25X4 THOR50X1 THOR50X2 THOR100"},
    {"THRB", "THRBX THRBX1 THRBX2 THROB1 THROB2 THROB4"},
    {"TOR", "AMTORFEC GTOR NAVTEX SITORB"},
};

/// Modes that the log names otherwise. The first of a pair of equals is the one that is written.
struct Noms_Mode {
  std::string_view log, norme;
};
constexpr Noms_Mode kAutres_Noms[] = {{"PACKET", "PKT"}, {"THROB", "THRB"}};

std::unordered_map<std::string_view, std::string_view> Familles_Par_Sous_Mode() {
  std::unordered_map<std::string_view, std::string_view> familles;
  for (const Famille& famille : kFamilles) {
    std::string_view reste = famille.sous_modes;
    while (!reste.empty()) {
      const std::size_t fin = std::min(reste.find(' '), reste.size());
      familles.emplace(reste.substr(0, fin), famille.mode);
      reste.remove_prefix(std::min(fin + 1, reste.size()));
    }
  }
  return familles;
}

/// The mode that a submode belongs to; empty for what is none.
std::string_view Famille_De(std::string sous_mode) {
  static const auto kPar_Sous_Mode = Familles_Par_Sous_Mode();
  std::replace(sous_mode.begin(), sous_mode.end(), ' ', '_');
  const auto place = kPar_Sous_Mode.find(sous_mode);
  return place == kPar_Sous_Mode.end() ? std::string_view{} : place->second;
}

std::string_view Nom_Du_Log(std::string_view mode) {
  for (const Noms_Mode& noms : kAutres_Noms)
    if (noms.norme == mode) return noms.log;
  return mode;
}

/// Whether the log's own list has the mode, so that it wants nothing finer. MFSK stands there for what is no more
/// exactly known; its submodes are modes of their own on the air.
bool Assez_Fin(std::string_view mode) {
  return mode != "MFSK" && std::find(kModes.begin(), kModes.end(), mode) != kModes.end();
}

}  // namespace

const Bande_ADIF3* Bande_De_Nom(std::string_view nom) {
  const std::string cherche = Majuscules(nom);
  const auto place = std::find_if(std::begin(kBandes_Norme), std::end(kBandes_Norme),
                                  [&](const Bande_ADIF3& bande) { return bande.nom == cherche; });
  return place == std::end(kBandes_Norme) ? nullptr : &*place;
}

const Bande_ADIF3* Bande_De_Frequence(double mhz) {
  const auto place = std::find_if(std::begin(kBandes_Norme), std::end(kBandes_Norme),
                                  [mhz](const Bande_ADIF3& bande) { return mhz >= bande.de && mhz <= bande.a; });
  return place == std::end(kBandes_Norme) ? nullptr : &*place;
}

const Bande_ADIF3* Bande_Du_Log(std::string_view bande) {
  const int indice = Indice_Bande_Lue(bande);
  if (indice < 0) return nullptr;
  return std::find_if(std::begin(kBandes_Norme), std::end(kBandes_Norme), [indice](const Bande_ADIF3& norme) {
    return norme.bande == kBandes[static_cast<std::size_t>(indice)];
  });
}

Mode_ADIF3 Mode_Vers_ADIF3(std::string_view mode) {
  const std::string nom = Majuscules(mode);
  // A contact by way of a repeater is one in FM.
  if (nom == "RELAIS") return {"FM", ""};
  for (const Noms_Mode& noms : kAutres_Noms)
    if (noms.log == nom) return {std::string(noms.norme), ""};
  const std::string_view famille = Famille_De(nom);
  return famille.empty() ? Mode_ADIF3{nom, ""} : Mode_ADIF3{std::string(famille), nom};
}

std::string Mode_Du_Log(const Mode_ADIF3& lu, bool& perte) {
  std::string mode = Majuscules(lu.mode), sous_mode = Majuscules(lu.sous_mode);
  // Older files have the submode for a mode.
  if (sous_mode.empty() || mode.empty()) {
    if (sous_mode.empty()) sous_mode = mode;
    mode = Famille_De(sous_mode);
    if (mode.empty()) mode.swap(sous_mode);
  }
  const std::string_view nom = Nom_Du_Log(mode);
  if (sous_mode.empty() || Assez_Fin(nom)) return std::string(nom);
  if (sous_mode.size() <= static_cast<std::size_t>(champs::Mode_A.largeur)) return sous_mode;
  perte = true;
  return std::string(nom);
}

}  // namespace vorelio
