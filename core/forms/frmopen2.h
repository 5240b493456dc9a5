#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// The picker of files for the sound tools; also of folders and programs.
struct SoundToolForm : Form
{
  SoundToolForm() : Form("frmopen2", "Najít ogg encoder") {}

  FormValue<std::string> Soubor{this, "Soubor"}; // name of the chosen file
  FormValue<std::string> Slozka{this, "Slozka"}; // its folder, no backslash at the end
  DriveList Drive1{this, "Drive1"};
  FolderList Dir1{this, "Dir1"};
  FileList File1{this, "File1", "*.exe;*.bat;*.com*"};
  Command cmdOk{this, "cmdOk", "Ok"};
  Command Command1{this, "Command1", "Storno"};
};
inline SoundToolForm frmopen2;

} // namespace tarvelin
