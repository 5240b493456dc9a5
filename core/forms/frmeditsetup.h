#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Colours of the script editor.
struct EditorSetupForm : Form
{
  EditorSetupForm() : Form("frmeditsetup", "Nastavení editoru...") {}

  Label Label1{this, "Label1", "Funkce:"};
  Picture BFunkce{this, "BFunkce"};
  Check BFT{this, "BFT", "Tučně"};
  Check BFK{this, "BFK", "Kurzívou"};
  Label Label2{this, "Label2", "Vybavení:"};
  Picture BVyb{this, "BVyb"};
  Check BVT{this, "BVT", "Tučně"};
  Check BVK{this, "BVK", "Kurzívou"};
  Label Label3{this, "Label3", "Konstanty Action:"};
  Picture BKon1{this, "BKon1"};
  Check BK1T{this, "BK1T", "Tučně"};
  Check BK1K{this, "BK1K", "Kurzívou"};
  Label Label4{this, "Label4", "Konstanty animací:"};
  Picture BKon2{this, "BKon2"};
  Check BK2T{this, "BK2T", "Tučně"};
  Check BK2K{this, "BK2K", "Kurzívou"};
  Label Label5{this, "Label5", "Operátory:"};
  Picture BOp{this, "BOp"};
  Check BOT{this, "BOT", "Tučně"};
  Check BOK{this, "BOK", "Kurzívou"};
  Label Label6{this, "Label6", "Komentáře"};
  Picture BKom{this, "BKom"};
  Check BKT{this, "BKT", "Tučně"};
  Check BKK{this, "BKK", "Kurzívou"};
  Check Check1{this, "Check1", "Ukazovat Barvy"};
  Command Command1{this, "Command1", "Ok"};
  Dialog CommonDialog1{this, "CommonDialog1"};
};
inline EditorSetupForm frmeditsetup;

} // namespace tarvelin
