// The mission reader on a mission of 100 MB, beside grep with the same keywords on the same file.
#include "bench/command.h"
#include "bench/fresh_process.h"
#include "bench/mission_generator.h"
#include "bench/scratch_folder.h"
#include "bench/stopwatch.h"
#include "core/shared.h"
#include "mission/sqm_reader.h"
#include "platform/paths.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <filesystem>
#include <string>

namespace tarvelin::bench
{

namespace
{

constexpr std::uint64_t missionSize = 100'000'000;
constexpr double allowedTimesGrep = 3;
constexpr double allowedTimesSize = 2;

/// The mission, written when it is first asked for.
struct BigMission
{
  BigMission() : path(folder.path() / "mission.sqm") { generateMission(path, missionSize); }

  std::string programPath() const { return platform::toProgram(path.string()); }
  double size() const { return static_cast<double>(std::filesystem::file_size(path)); }

  ScratchFolder folder;
  std::filesystem::path path;
};

const BigMission& bigMission()
{
  static const BigMission mission;
  return mission;
}

double bestOfReader = 0; // seconds; 0 until it was measured

void keepBest(double& best, double seconds)
{
  best = best == 0 ? seconds : std::min(best, seconds);
}

bool wasRead()
{
  return shared.PocetZnacek == generatedMarkers && shared.PocetSenzoru == generatedSensors && shared.Mesic == "9" &&
         shared.Znacky.at(generatedMarkers - 1).Name == "\"znacka" + std::to_string(generatedMarkers - 1) + "\"";
}

void readMission(benchmark::State& state)
{
  const std::string path = bigMission().programPath();
  for (auto _ : state)
  {
    const Stopwatch watch;
    NactiSqm(path);
    const double seconds = watch.seconds();
    keepBest(bestOfReader, seconds);
    state.SetIterationTime(seconds);
  }
  if (!wasRead())
    state.SkipWithError("the mission was not read");
  state.SetBytesProcessed(static_cast<std::int64_t>(bigMission().size()) * state.iterations());
}

constexpr auto keywords =
    "BRIEFINGNAME|BRIEFINGDESCRIPTION|STARTWEATHER|FORECASTWEATHER|STARTFOG|FORECASTFOG|MONTH|DAY|HOUR|MINUTE|"
    "CLASS INTRO|CLASS MISSION|CLASS OUTROWIN|CLASS OUTROLOOSE|RESISTANCEEAST|RESISTANCEWEST|"
    "CLASS MARKERS|CLASS SENSORS|ADDONS\\[\\]";

/// grep in the plain locale, where it is fastest.
void grepMission(benchmark::State& state)
{
  const std::vector<std::string> command = {"LC_ALL=C", "grep", "-ciE", keywords, bigMission().path.string()};
  double best = 0;
  for (auto _ : state)
  {
    const Stopwatch watch;
    std::string found;
    const int status = run(command, [&found](const std::string& line) { found = line; });
    const double seconds = watch.seconds();
    if (status != 0 || found.empty())
      state.SkipWithError("grep failed");
    keepBest(best, seconds);
    state.SetIterationTime(seconds);
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(bigMission().size()) * state.iterations());
  if (bestOfReader == 0)
    return;
  const double ratio = bestOfReader / best;
  state.counters["reader/grep"] = ratio;
  state.SetLabel(ratio <= allowedTimesGrep ? "reader within 3 times grep" : "READER TOO SLOW: over 3 times grep");
}

void memoryOfReader(benchmark::State& state)
{
  const std::string path = bigMission().programPath();
  double growth = 0;
  for (auto _ : state)
    growth = peakGrowthInFreshProcess([&path] { NactiSqm(path); });
  const double ratio = growth / bigMission().size();
  state.counters["growth"] = growth;
  state.counters["growth/size"] = ratio;
  state.SetLabel(ratio <= allowedTimesSize ? "within twice the file" : "TOO MUCH: over twice the file");
}

BENCHMARK(readMission)->Name("NactiSqm/100MB")->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(grepMission)->Name("grep/100MB")->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(memoryOfReader)->Name("NactiSqm/memory")->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tarvelin::bench
