// The script host from its start to a shown main form, and the writing of the demo's files. A script prints a mark
// before and behind what is measured.
#include "bench/command.h"
#include "bench/scratch_folder.h"
#include "bench/stopwatch.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

namespace tarvelin::bench
{

namespace
{

constexpr int presses = 100;

constexpr std::string_view startScript = R"(
print("bench: go") io.flush()
start()
assert(frmmain.visible)
print("bench: done") io.flush()
quit()
)";

/// What the demo leaves, on the way to being written.
constexpr std::string_view demoScript = R"(
local realQuit = quit
quit = function() end
arg[0] = arg[2]
dofile(arg[2])
)";

/// Takes the sounds and the picture away again: the pages and the description are left.
constexpr std::string_view withoutMediaScript = R"(
for list, command in pairs {seznamradia = "cmdodebratradio", seznamzvuku = "cmdodebratzvuk", seznamhudby = "cmdodebrathudbu"} do
  frmmain[list]:select(0)
  frmmain[command]:click()
end
frmmain.cmdnic:click()
)";

constexpr std::string_view writeScript = R"(
print("bench: go") io.flush()
for _ = 1, tonumber(arg[3]) do frmmain.cmdvytvor:click() end
print("bench: done") io.flush()
realQuit()
)";

/// A program folder that has had its first start, the demo mission and the scripts.
struct Workshop
{
  Workshop() : home(folder.path() / "home"), mission(folder.path() / "Demo.Eden" / "mission.sqm")
  {
    const std::filesystem::path root = TARVELIN_ROOT;
    std::filesystem::create_directory(home);
    std::filesystem::copy(root / "Bfdata", home / "Bfdata", std::filesystem::copy_options::recursive);
    std::filesystem::copy(root / "examples" / "Demo.Eden", mission.parent_path());
    std::ofstream(folder.path() / "start.lua") << startScript;
    std::ofstream(folder.path() / "demo.lua") << demoScript << writeScript;
    std::ofstream(folder.path() / "pages.lua") << demoScript << withoutMediaScript << writeScript;
    ready = run({TARVELIN_HOST, "--home", home.string(), demo(), mission.string()}, [](const std::string&) {}) == 0;
  }

  static std::string demo() { return (std::filesystem::path(TARVELIN_ROOT) / "examples" / "demo.lua").string(); }

  /// Seconds between the marks; nothing when the script failed.
  std::optional<double> measure(const std::string& script) const
  {
    std::optional<Stopwatch> watch;
    std::optional<double> seconds;
    const int status = run({TARVELIN_HOST, "--home", home.string(), (folder.path() / script).string(), mission.string(),
                            demo(), std::to_string(presses)},
                           [&](const std::string& line)
                           {
                             if (line == "bench: go")
                               watch.emplace();
                             else if (line == "bench: done" && watch)
                               seconds = watch->seconds();
                           });
    return status == 0 ? seconds : std::nullopt;
  }

  ScratchFolder folder;
  std::filesystem::path home;
  std::filesystem::path mission;
  bool ready = false;
};

const Workshop& workshop()
{
  static const Workshop shop;
  return shop;
}

/// Seconds of one of `times` turns; `allowed` is the limit, 0 for none.
void measureScript(benchmark::State& state, const std::string& script, int times, double allowed)
{
  if (!workshop().ready)
  {
    state.SkipWithError("the demo failed");
    return;
  }
  double total = 0;
  for (auto _ : state)
  {
    const std::optional<double> seconds = workshop().measure(script);
    if (!seconds)
    {
      state.SkipWithError("the script failed");
      return;
    }
    total += *seconds / times;
    state.SetIterationTime(*seconds / times);
  }
  if (allowed <= 0)
    return;
  const double mean = total / static_cast<double>(state.iterations());
  const std::string limit = std::to_string(static_cast<int>(allowed * 1000)) + " ms";
  state.SetLabel(mean < allowed ? "within " + limit : "TOO SLOW: over " + limit);
}

void startUp(benchmark::State& state)
{
  measureScript(state, "start.lua", 1, 0.030);
}

void writePages(benchmark::State& state)
{
  measureScript(state, "pages.lua", presses, 0.005);
}

/// With two sounds and a picture, each replaced in one step: a disk takes about a millisecond for each.
void writeDemo(benchmark::State& state)
{
  measureScript(state, "demo.lua", presses, 0);
}

BENCHMARK(startUp)->Name("start/frmmain")->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(30);
BENCHMARK(writePages)->Name("write/pages")->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(writeDemo)->Name("write/demo")->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace

} // namespace tarvelin::bench
