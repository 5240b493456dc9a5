#pragma once

#include <string>

namespace tarvelin
{

/// The whole start of the program with the command line of the system: loads the forms, reads settings (or asks for
/// them at a first start), language and catalogues, handles the command line and shows the main form.
void startProgram(const std::string& commandLine);

/// Puts the handlers of start and exit on their fields.
void attachStartAndExit();

} // namespace tarvelin
