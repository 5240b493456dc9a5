#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// About the program and its PBO utility.
struct AboutForm : Form
{
  AboutForm() : Form("frmabout", "About Tarvelin PBO utility") {}

  Label Label2{this, "Label2", "Tarvelin"};
  Label Label8{this, "Label8", "Tvorba misí a kampaní pro hru Operace Flashpoint"};
  FieldArray<Label> Label4{this, "Label4", {{0, "Brífing, Overview, Description.ext, zvuky, skripty a kampaně"}}};
  Label Label3{this, "Label3", "Kampaň balí do souboru PBO samostatná utilita."};
  Label Label5{this, "Label5", "Nápovědu najdete v okně s náhledy souborů."};
};
inline AboutForm frmabout;

} // namespace tarvelin
