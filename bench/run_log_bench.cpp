// A line more in the run log, by the number of lines that are there already: it costs the line, not the log.
#include "core/forms/frmload.h"
#include "core/run_log.h"

#include <benchmark/benchmark.h>
#include <string>

namespace tarvelin::bench
{

namespace
{

constexpr std::string_view line = "Vytváření: \\home\\jana\\Demo.Eden\\Briefing.html\r\n";

void addLine(benchmark::State& state)
{
  for (std::int64_t i = 0; i < state.range(0); ++i)
    ZapisLog(line);
  for (auto _ : state)
    ZapisLog(line);
  if (frmload.log.text().size() != line.size() * static_cast<std::size_t>(state.range(0) + state.iterations()))
    state.SkipWithError("the log lacks lines");
  frmload.log.set("");
}

BENCHMARK(addLine)->Name("ZapisLog/lines")->Arg(1'000)->Arg(100'000)->Arg(1'000'000)->Iterations(10'000);

} // namespace

} // namespace tarvelin::bench
