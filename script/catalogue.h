#pragma once

#include <string>

namespace tarvelin
{

/// Reads the command catalogue (commands.dat) into the tree frmmain.prikazy: "@" lines are headings, "#" lines
/// sub-headings, the others commands. Failures are logged; a repeated key loses only its own node.
void NactiPrikazy(const std::string& path);

/// Reads the words of the script language (edit.dat) into frmrejstrik.seznam, each with its class as its tag. Failures
/// are logged.
void NactiDruhePrikazy(const std::string& path);

/// Puts both readers at start-up's disposal.
void attachCatalogue();

} // namespace tarvelin
