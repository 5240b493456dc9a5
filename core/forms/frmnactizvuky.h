#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// The intake of sound files.
struct SoundIntakeForm : Form
{
  SoundIntakeForm() : Form("frmnactizvuky", "Načíst soubor pro rádio...") {}

  FormValue<std::int16_t> PosledniRezim{this, "PosledniRezim"}; // intake mode of the last showing
  DriveList Drive1{this, "Drive1"};
  FolderList Dir1{this, "Dir1"};
  FileList File1{this, "File1", "*.ogg*"};
  Label Label1{this, "Label1", "Soubor který chcete načíst přidejte stisknutím tlačítka Add do seznamu"};
  List seznamsouboru{this, "seznamsouboru", List::Style::checkMarks};
  Command cmdadd{this, "cmdadd", "Add"};
  Command cmddel{this, "cmddel", "Del"};
  Command cmdopen{this, "cmdopen", "Otevřít"};
  Command cmdstorno{this, "cmdstorno", "Storno"};
};
inline SoundIntakeForm frmnactizvuky;

} // namespace tarvelin
