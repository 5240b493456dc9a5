#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// The wait window at the exit and while a mission loads.
struct WaitForm : Form
{
  WaitForm() : Form("Form3", "Ukončování...") {}

  Label Label1{this, "Label1", "Ukončuji program, čekejte prosím..."};
};
inline WaitForm Form3;

} // namespace tarvelin
