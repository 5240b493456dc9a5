#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// A tip at the start.
struct TipsForm : Form
{
  TipsForm() : Form("frmtips", "Tipy a triky") {}

  FormValue<std::int16_t> Aktualni{this, "Aktualni", 1}; // number of the tip that comes next, from 1
  Browser WebBrowser1{this, "WebBrowser1"};
  Command Command1{this, "Command1", "Ok"};
  Command Command2{this, "Command2", "Další tip"};
};
inline TipsForm frmtips;

} // namespace tarvelin
