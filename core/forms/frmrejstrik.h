#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// The index of script commands; its list is also the highlighter's dictionary.
struct CommandIndexForm : Form
{
  CommandIndexForm() : Form("frmrejstrik", "") {}

  Label Label1{this, "Label1", "Hledaný příkaz:"};
  Text nazev{this, "nazev"};
  List seznam{this, "seznam", List::Style::sorted};
  Label lbltyp{this, "lbltyp"};
  Command Command1{this, "Command1", "Ok"};
};
inline CommandIndexForm frmrejstrik;

} // namespace tarvelin
