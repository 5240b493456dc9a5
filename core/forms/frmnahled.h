#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Previews of the generated files.
struct PreviewForm : Form
{
  PreviewForm() : Form("frmnahled", "Náhledy souborů") {}

  Browser nahledbrowser{this, "nahledbrowser"};
  Command cmdbriefing{this, "cmdbriefing", "Ukázat Brífing"};
  Command cmdoverview{this, "cmdoverview", "Ukázat Overview"};
  Command cmddescription{this, "cmddescription", "Ukázat Description.ext"};
  Command cmdukaystrtable{this, "cmdukaystrtable", "Ukázat StringTable.csv"};
  Command cmdnapoveda{this, "cmdnapoveda", "Nápověda"};
  Command cmdOk{this, "cmdOk", "Ok"};
};
inline PreviewForm frmnahled;

} // namespace tarvelin
