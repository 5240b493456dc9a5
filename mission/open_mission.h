#pragma once

#include <string>

namespace tarvelin
{

/// Fills the combo of what `Vytvoř` writes and selects its last row.
void Akce();

/// Reads the companion files of the open mission into the panels.
void NactiSoubory();

/// Takes the parts of a command line that name a mission or a language. It splits at every comma, with no quoting.
void ZkontrolujPrikazovyRadek(const std::string& commandLine);

/// Puts the handlers of the mission picker and its menu on their fields.
void attachOpenMission();

} // namespace tarvelin
