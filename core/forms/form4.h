#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Links to the Internet.
struct LinksForm : Form
{
  LinksForm() : Form("Form4", "Odkazy do Internetu") {}

  List List1{this, "List1"};
  Command Command1{this, "Command1", "Otevřít v Internet Exploreru"};
  Command Command2{this, "Command2", "Storno"};
};
inline LinksForm Form4;

} // namespace tarvelin
