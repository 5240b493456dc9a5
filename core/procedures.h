#pragma once

#include <functional>
#include <string>

namespace tarvelin
{

/// What start-up, exit and the change of language call in the subsystems above the core. Each subsystem puts its own
/// procedures here when its handlers are attached, so that the core includes none of them.
struct Procedures
{
  using Plain = std::function<void()>;
  using OfPath = std::function<void(const std::string&)>;

  Plain readGame = [] {};                               ///< the game's folder and drive
  OfPath NactiPrikazy = [](const std::string&) {};      ///< commands.dat
  OfPath NactiDruhePrikazy = [](const std::string&) {}; ///< edit.dat
  OfPath NactiAddony = [](const std::string&) {};       ///< addons.dat
  OfPath LoadPrograms = [](const std::string&) {};      ///< programs.dat
  Plain Akce = [] {};
  Plain Jazyky2 = [] {};
  Plain brejle = [] {};
  Plain NactiObrazek = [] {};
  OfPath ZkontrolujPrikazovyRadek = [](const std::string&) {};
};

inline Procedures procedures;

} // namespace tarvelin
