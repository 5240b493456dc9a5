#pragma once

#include <string>

namespace tarvelin
{

/// Makes the folder of the campaign under `cesta` and copies missions and sounds into it, with frmcopy as the progress
/// window. A failing step is logged and skipped. A call while another one runs does nothing.
void KopirujKampan(const std::string& cesta);

/// Copies a folder with all below it, over what is there. A file that fails is logged and costs that file only. A
/// folder that holds itself, by a link or because the target lies in it, is not copied into itself.
void KopirujSlozku(const std::string& zdroj, const std::string& cil);

/// True while KopirujKampan runs.
bool campaignIsCopied();

} // namespace tarvelin
