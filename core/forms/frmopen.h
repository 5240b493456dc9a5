#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// The picture picker with its preview.
struct OpenPictureForm : Form
{
  OpenPictureForm() : Form("Frmopen", "Načíst obrázek") {}

  FormValue<bool> ProOblicej{this, "ProOblicej"}; // it picks the face of an identity
  FormValue<bool> ProKampan{this, "ProKampan"};   // it picks the picture of a campaign
  DriveList Drive1{this, "Drive1"};
  FolderList Dir1{this, "Dir1"};
  FileList File1{this, "File1", "*.jpg;*.paa*"};
  Picture imgnahled{this, "imgnahled"};
  Command cmdOk{this, "cmdOk", "Ok"};
  Command cmdstorno{this, "cmdstorno", "Storno"};
};
inline OpenPictureForm Frmopen;

} // namespace tarvelin
