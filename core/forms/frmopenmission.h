#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// The mission picker.
struct OpenMissionForm : Form
{
  OpenMissionForm() : Form("frmopenmission", "Otevřít misi Operace Flashpoint") {}

  DriveList Drive1{this, "Drive1"};
  FolderList Dir1{this, "Dir1"};
  FileList File1{this, "File1", "*.sqm*"};
  Check chknacist{this, "chknacist", "Načíst existující soubory Overview, Briefing atd...", 1};
  Command Command1{this, "Command1", "Ok"};
  Command Command2{this, "Command2", "Storno"};
};
inline OpenMissionForm frmopenmission;

} // namespace tarvelin
