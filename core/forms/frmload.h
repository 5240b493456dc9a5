#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// The run log and its viewer.
struct LogForm : Form
{
  LogForm() : Form("frmload", "Sledování běhu programu...") {}

  RichText log{this, "log"};
  Command Command1{this, "Command1", "Ok"};
  Command Command2{this, "Command2", "Promáznout LogFiles adresář"};
};
inline LogForm frmload;

} // namespace tarvelin
