#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// The splash; it creates the other forms.
struct StartForm : Form
{
  StartForm() : Form("frmstart", "Loading program") {}
};
inline StartForm frmstart;

} // namespace tarvelin
