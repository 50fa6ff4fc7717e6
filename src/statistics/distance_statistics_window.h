#pragma once

#include <array>

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// The contacts on 50 MHz and above by distance and band.
class Statistiques : public Form {
 public:
  explicit Statistiques(Programme& programme);

  /// Counts the log. The band of its last line becomes the station's current band.
  void Form_Load() override;

  // The columns as they stand on the screen.
  Label Text4{*this, "Text4", "50 MHz"};
  Label Text3{*this, "Text3", "144 MHz"};
  Label Text1{*this, "Text1", "432 MHz"};
  Label Text23{*this, "Text23", "1.3 GHz"};
  Label Text2{*this, "Text2", "2.3 GHz"};
  Label Text26{*this, "Text26", "5.7 GHz"};
  Label Text25{*this, "Text25", "10 GHz"};
  Label Text24{*this, "Text24", "24 GHz"};

  Label Text10{*this, "Text10", "Distances"};  ///< Title of the rows.
  Label Text22{*this, "Text22", "Inf a 100 Km"};
  Label Text21{*this, "Text21", "100 a 200 Km"};
  Label Text20{*this, "Text20", "200 a 300 Km"};
  Label Text19{*this, "Text19", "300 a 400 Km"};
  Label Text18{*this, "Text18", "400 a 500 Km"};
  Label Text17{*this, "Text17", "500 a 600 Km"};
  Label Text16{*this, "Text16", "600 a 700Km"};
  Label Text15{*this, "Text15", "700 a 800 Km"};
  Label Text14{*this, "Text14", "800 a 900 Km"};
  Label Text13{*this, "Text13", "900 a 1000 Km"};
  Label Text12{*this, "Text12", "Sup a 1000 Km"};
  Label Text9{*this, "Text9", "Total QSO"};

  ControlArray<TextField> Text11;  ///< Band after band as in `kBandes_Distance`, each from the nearest class on.
  TextField Tot1{*this, "Tot1"};   ///< Totals of the bands, in the same order.
  TextField Tot2{*this, "Tot2"};
  TextField Tot3{*this, "Tot3"};
  TextField Tot4{*this, "Tot4"};
  TextField Tot5{*this, "Tot5"};
  TextField Tot6{*this, "Tot6"};
  TextField Tot7{*this, "Tot7"};
  TextField Tot8{*this, "Tot8"};

 private:
  std::array<TextField*, 8> Totaux() { return {&Tot1, &Tot2, &Tot3, &Tot4, &Tot5, &Tot6, &Tot7, &Tot8}; }
};

}  // namespace vorelio
