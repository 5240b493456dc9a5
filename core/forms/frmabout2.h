#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Facts about the installed game.
struct GameInfoForm : Form
{
  GameInfoForm() : Form("frmabout2", "O vašem Flashpointu") {}

  Label Label1{this, "Label1", "Operace Flashpoint na tomto počítači"};
  Label Label2{this, "Label2", "Mechanika CD:"};
  Label lblCD{this, "lblCD"};
  Label Label3{this, "Label3", "Složka hry:"};
  Label lblcesta{this, "lblcesta"};
  Command Command1{this, "Command1", "Ok"};
};
inline GameInfoForm frmabout2;

} // namespace tarvelin
