#pragma once

#include <memory>

#include "cluster/cluster_settings_windows.h"
#include "cluster/cluster_window.h"
#include "cluster/memory_window.h"
#include "entry/ddfm.h"
#include "exchange/award_export_window.h"
#include "exchange/export_adif_window.h"
#include "exchange/import_journal_window.h"
#include "maintenance/add_activity_window.h"
#include "maintenance/backup_settings_window.h"
#include "maintenance/notes_window.h"
#include "maintenance/progress_window.h"
#include "maintenance/restore_activities_window.h"
#include "maps/activity_map.h"
#include "maps/department_map.h"
#include "maps/locator_maps.h"
#include "printing/labels_window.h"
#include "printing/print_activity_window.h"
#include "printing/print_log_window.h"
#include "printing/select_qso_window.h"
#include "qsl/multi_qsl_window.h"
#include "qsl/qsl_window.h"
#include "search/department_window.h"
#include "search/search_window.h"
#include "stations/error_window.h"
#include "stations/loading_window.h"
#include "stations/station_form.h"
#include "statistics/activation_statistics_window.h"
#include "statistics/distance_statistics_window.h"
#include "statistics/prefix_statistics_window.h"
#include "statistics/qso_statistics_window.h"
#include "tallies/add_prefix_window.h"
#include "tallies/directory_window.h"
#include "windows/windows_bench.h"

namespace vorelio::tests {

using Maker = std::unique_ptr<Form> (*)(Programme&);

template <typename F>
std::unique_ptr<Form> Make(Programme& programme) {
  return std::make_unique<F>(programme);
}

template <typename... F>
inline constexpr Maker kMakersOf[] = {Make<F>...};

/// Every window of the program. A new one that isn't added here fails the test on the .ui files.
inline constexpr const auto& kForms =
    kMakersOf<DDFM, Chargement, Station, Gestion_Erreur, Ajout_Prefixe, Progression, Statistique_Prefixe,
              Statistique_QSO, Statistiques, Statistique_DFCF, Recherche_Indicatif, Print_Log, Print_Activite,
              Affiche_Dpt, Fichier_Nomenclature, Ajout_Activite, Delta_QSO, Exporter_QSO, Export_Adif, Import_Journal,
              Restoration_Activite, QSL, Multi_QSL, Select_QSO, Etiquettes, Notes, Cluster, Memoire_CL, Adresse_Cluster,
              Ports_Serie, Carte, Carte_Acti, Select_Locator, Carte_IM, Carte_IN, Carte_IO, Carte_JM, Carte_JN,
              Carte_JO, Carte_KM, Carte_KN, Carte_KO>;

/// A form with its window, without its being loaded.
struct Bound {
  /// `furnish` adds what the program itself has in its windows, such as the view menu.
  explicit Bound(Maker make, decltype(QtWindows::Furnish) furnish = {}) : form(make(bench.programme)) {
    bench.windows.Furnish = std::move(furnish);
    bench.windows.Created(*form);
  }
  ~Bound() { bench.windows.Destroyed(*form); }

  QWidget& Window() { return *bench.windows.WindowOf(*form); }

  WindowsBench bench;
  std::unique_ptr<Form> form;
};

}  // namespace vorelio::tests
