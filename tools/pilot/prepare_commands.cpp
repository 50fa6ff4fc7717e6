#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>

#include "core/errors.h"
#include "core/log_line.h"
#include "core/text.h"
#include "doubles/ready_station.h"
#include "pilot/commands.h"
#include "stations/station_files.h"

/// What makes the place ready: the station, files, settings, the clock.
namespace vorelio::pilot {

namespace {

void PutFile(const Run& run, const std::string& path, const std::string& bytes, std::ios::openmode mode) {
  const std::filesystem::path place = run.Path(path);
  std::filesystem::create_directories(place.parent_path());
  std::ofstream file(place, std::ios::binary | mode);
  file << bytes << std::flush;
  if (!file) throw Failure{"can't write " + place.string()};
}

void Station(Run& run, Args& args) {
  std::string call = args.Text("callsign");
  const std::string locator = args.Text("locator");
  args.End();
  std::replace(call.begin(), call.end(), '/', '_');
  Programme outside(run.Stand());
  Sous_Programmes::Cree_Fichiers_Station(outside, call);
  doubles::SeedStationSettings(run.Settings(), run.Folder().Path(), '/', call, locator);
}

void Setting(Run& run, Args& args) {
  const std::string application = args.Text("application"), section = args.Text("section"), key = args.Text("key");
  const std::string value = args.Text("value");
  args.End();
  run.Settings().Write(application, section, key, value);
}

void Clock(Run& run, Args& args) {
  const std::string utc = args.Word("time"), offset = args.Word("offset");
  args.End();
  if (!run.Clock().Set(utc, offset))
    Differs("a time like \"2003-05-12 12:34:56\" +02:00", InQuotes(utc) + " " + offset);
}

void Write(Run& run, Args& args) {
  const std::string path = args.Word("path");
  std::string bytes;
  for (const std::string& line : args.Block()) bytes += line + "\r\n";
  PutFile(run, path, bytes, std::ios::trunc);
}

void Raw(Run& run, Args& args) {
  const std::string path = args.Word("path");
  const std::string text = args.Text("text");
  args.End();
  PutFile(run, path, text, std::ios::trunc);
}

void Remove(Run& run, Args& args) {
  const std::string path = args.Word("path");
  args.End();
  std::error_code ignored;
  if (!std::filesystem::remove(run.Path(path), ignored)) Differs("file " + path, "none to remove");
}

/// Fields of a contact that a scenario may give, by the names of the entry form.
std::string Champs_QSO::*FieldOf(std::string_view name) {
  static const std::map<std::string_view, std::string Champs_QSO::*> fields = {
      {"Date_A", &Champs_QSO::Date_A},         {"Indicatif_A", &Champs_QSO::Indicatif_A},
      {"Debut_A", &Champs_QSO::Debut_A},       {"Fin_A", &Champs_QSO::Fin_A},
      {"Depart_A", &Champs_QSO::Depart_A},     {"Locator_A", &Champs_QSO::Locator_A},
      {"Bande_A", &Champs_QSO::Bande_A},       {"Mode_A", &Champs_QSO::Mode_A},
      {"RSTE_A", &Champs_QSO::RSTE_A},         {"RSTR_A", &Champs_QSO::RSTR_A},
      {"QTH_A", &Champs_QSO::QTH_A},           {"Prenom_A", &Champs_QSO::Prenom_A},
      {"Distance_A", &Champs_QSO::Distance_A}, {"Azimut_A", &Champs_QSO::Azimut_A},
      {"Activ_A", &Champs_QSO::Activ_A},       {"Remarques_A", &Champs_QSO::Remarques_A}};
  const auto found = fields.find(name);
  return found == fields.end() ? nullptr : found->second;
}

/// The three fields inside the reserved block of the line.
const Champ* QslFieldOf(std::string_view name) {
  if (name == "Etat") return &champs::Etat_QSL;
  if (name == "QSLE_A") return &champs::QSLE_A;
  if (name == "QSLR_A") return &champs::QSLR_A;
  return nullptr;
}

void Qso(Run& run, Args& args) {
  const std::string path = args.Word("path");
  Champs_QSO qso;
  qso.Activ_A = "0";
  while (args.More()) {
    const std::string word = args.Text("field");
    const std::size_t equals = word.find('=');
    if (equals == std::string::npos) Differs("a field like Bande_A=\"14 Mhz\"", Shown(word));
    const std::string name = word.substr(0, equals), value = word.substr(equals + 1);
    if (const auto field = FieldOf(name)) {
      qso.*field = value;
    } else if (const Champ* inside = QslFieldOf(name)) {
      if (static_cast<int>(value.size()) > inside->largeur) throw Failure{Shown(value) + " is too long for " + name};
      qso.Bloc_QSL.replace(static_cast<std::size_t>(inside->colonne - champs::Etat_QSL.colonne),
                           static_cast<std::size_t>(inside->largeur), Complete(value, inside->largeur));
    } else {
      Differs("a field of a contact", name);
    }
  }
  args.End();
  try {
    PutFile(run, path, Construit_Ligne(qso) + "\r\n", std::ios::app);
  } catch (const Erreur_Execution&) {
    throw Failure{"a field is too long for the log line"};
  }
}

void Only(Run& run, Args& args) {
  if (!args.Take("windows")) Differs("only windows", "another word");
  args.End();
  run.OnlyOnScreen();
}

void Start(Run& run, Args& args) {
  args.End();
  run.Start();
}

constexpr NamedCommand kPreparing[] = {{"station", Station}, {"setting", Setting}, {"clock", Clock},
                                       {"write", Write},     {"raw", Raw},         {"qso", Qso},
                                       {"remove", Remove},   {"start", Start},     {"only", Only}};

}  // namespace

CommandFunction FindPreparing(std::string_view name) { return FindIn(kPreparing, name); }

}  // namespace vorelio::pilot
