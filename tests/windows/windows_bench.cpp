#include "windows/windows_bench.h"

namespace vorelio::tests {

WindowsBench::WindowsBench()
    : programme(devices.Join(settings, messages, dialogs, clock, windows, disk, folder.Path())) {
  CopyTemplates(folder.Path());
  Sous_Programmes::Cree_Fichiers_Station(programme, "F9QZX");
  SeedStationSettings(settings, folder.Path(), '/', "F9QZX", "JN33BB");
}

}  // namespace vorelio::tests
