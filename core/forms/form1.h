#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Progress of the copying of a mission's sounds.
struct CopyProgressForm : Form
{
  CopyProgressForm() : Form("Form1", "Průběh kopírování a dekodóvání souborů") {}

  Label lblstav{this, "lblstav", "Probíhá kopírování zvuků pro rádio:"};
  Label Label1{this, "Label1", "Kopíruji soubor:"};
  Progress prubeh{this, "prubeh"};
  Command Command1{this, "Command1", "Storno"};
};
inline CopyProgressForm Form1;

} // namespace tarvelin
