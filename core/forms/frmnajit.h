#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Find and replace in the script.
struct FindForm : Form
{
  FindForm() : Form("frmnajit", "Najít či nahradit") { cmdnahradit.enable(false); }

  FormValue<std::int32_t> pozice{this, "pozice", -1}; // the last hit; a search begins one behind it
  Label Label1{this, "Label1", "Hledané slovo:"};
  Text txthledane{this, "txthledane"};
  Label Label2{this, "Label2", "Nahradit:"};
  Text txtnahradit{this, "txtnahradit"};
  Check chkmv{this, "chkmv", "Rozlišovat malá a velká"};
  Check chkcela{this, "chkcela", "Jen celá slova"};
  Command cmdnajdi{this, "cmdnajdi", "Najít"};
  Command cmddalsi{this, "cmddalsi", "Najít další"};
  Command cmdnahradit{this, "cmdnahradit", "Nahradit"};
  Command Command4{this, "Command4", "Ok"};
};
inline FindForm frmnajit;

} // namespace tarvelin
