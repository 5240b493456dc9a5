// Copying of a campaign's missions beside what the system's own cp needs for the same files; the mean of
// two turns. What the disk still has to do afterwards is in neither number.
#include "bench/command.h"
#include "bench/scratch_folder.h"
#include "bench/stopwatch.h"
#include "campaign/copying.h"
#include "platform/paths.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

namespace tarvelin::bench
{

namespace
{

namespace fs = std::filesystem;

constexpr int missions = 60;
constexpr int scripts = 50; ///< small files of each mission
constexpr std::int64_t scriptSize = 2000;
constexpr std::int64_t soundSize = 1 << 20;

void fill(const fs::path& file, std::int64_t size)
{
  const std::string block(static_cast<std::size_t>(std::min(size, soundSize)), 'x');
  std::ofstream out(file, std::ios::binary);
  for (std::int64_t left = size; left > 0; left -= static_cast<std::int64_t>(block.size()))
    out.write(block.data(), static_cast<std::streamsize>(std::min(left, soundSize)));
}

/// A folder of sixty missions with scripts and sounds, that many bytes in all.
fs::path makeMissions(const fs::path& folder, std::int64_t bytes)
{
  const std::int64_t sounds = std::max<std::int64_t>(1, bytes / missions / soundSize);
  for (int mission = 0; mission < missions; ++mission)
  {
    const fs::path target = folder / "missions" / ("Mission" + std::to_string(mission) + ".Eden");
    fs::create_directories(target / "sound");
    for (int script = 0; script < scripts; ++script)
      fill(target / ("script" + std::to_string(script) + ".sqs"), scriptSize);
    for (std::int64_t sound = 0; sound < sounds; ++sound)
      fill(target / "sound" / ("voice" + std::to_string(sound) + ".ogg"), soundSize);
  }
  return folder / "missions";
}

/// Seconds that an action takes.
template <class Action> double secondsOf(Action action)
{
  const Stopwatch watch;
  action();
  return watch.seconds();
}

/// Both copy in turns, each time to a place that was never there: a disk is slow where files were deleted just now, and
/// so is a memory that is full of files copied before. So each goes first once, behind a copy that does not count.
void copyMissions(benchmark::State& state)
{
  const ScratchFolder scratch;
  const fs::path source = makeMissions(scratch.path(), state.range(0));
  int copies = 0;
  const auto target = [&] { return (scratch.path() / ("campaign" + std::to_string(copies++))).string(); };
  const auto system = [&] { run({"cp", "-r", source.string(), target()}, [](const std::string&) {}); };
  const auto ours = [&] { KopirujSlozku(platform::toProgram(source.string()), platform::toProgram(target())); };
  system();
  double systemTime = 0;
  double ourTime = 0;
  for (auto _ : state)
  {
    ourTime += secondsOf(ours);
    systemTime += secondsOf(system);
    systemTime += secondsOf(system);
    ourTime += secondsOf(ours);
  }
  state.SetIterationTime(ourTime / 2);
  state.SetLabel("cp -r " + std::to_string(systemTime / 2) + " s, " + std::to_string(ourTime / systemTime) + " of it");
  state.SetBytesProcessed(state.range(0));
}

BENCHMARK(copyMissions)
    ->Name("copy/missions")
    ->Arg(std::int64_t{1} << 28)
    ->Arg(std::int64_t{1} << 31)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

} // namespace

} // namespace tarvelin::bench
