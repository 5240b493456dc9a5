// A rich text up to a million characters: its time must grow with its length, and no faster.
#include "core/forms/form.h"
#include "core/forms/rich_text.h"
#include "core/strings.h"

#include <benchmark/benchmark.h>
#include <string>

namespace tarvelin::bench
{

namespace
{

constexpr TextStyle blue{.color = 0xFF0000, .bold = true, .italic = false};

/// `count` characters, some of them of two bytes, in lines.
std::string textOf(std::int64_t count)
{
  constexpr std::string_view line = "_jednotka doMove getPos hráč; ~2.5 + random 3 \r\n";
  const auto lineLength = static_cast<std::int64_t>(length(line));
  std::string text;
  for (std::int64_t i = 0; i < count / lineLength; ++i)
    text += line;
  return text + std::string(static_cast<std::size_t>(count % lineLength), 'x');
}

struct Page : Form
{
  Page() : Form("page", "") {}

  RichText text{this, "text"};
};

void load(benchmark::State& state)
{
  const std::string text = textOf(state.range(0));
  for (auto _ : state)
  {
    Page page;
    page.text.set(text);
    benchmark::DoNotOptimize(page.text.length());
  }
  state.SetComplexityN(state.range(0));
}

void append(benchmark::State& state)
{
  constexpr std::int64_t piece = 100;
  const std::string text = textOf(piece);
  for (auto _ : state)
  {
    Page page;
    for (std::int64_t i = 0; i < state.range(0); i += piece)
      page.text.append(text);
    benchmark::DoNotOptimize(page.text.length());
  }
  state.SetComplexityN(state.range(0));
}

void styleWhole(benchmark::State& state)
{
  const std::string text = textOf(state.range(0));
  for (auto _ : state)
  {
    Page page;
    page.text.set(text);
    page.text.setStyle(0, static_cast<std::size_t>(state.range(0)), blue);
    benchmark::DoNotOptimize(page.text.runs().size());
  }
  state.SetComplexityN(state.range(0));
}

/// Every other word from the first to the last, as a script is coloured.
void styleWords(benchmark::State& state)
{
  constexpr std::size_t word = 8;
  const std::string text = textOf(state.range(0));
  for (auto _ : state)
  {
    Page page;
    page.text.set(text);
    for (std::size_t start = 0; start < static_cast<std::size_t>(state.range(0)); start += 2 * word)
      page.text.setStyle(start, word, blue);
    benchmark::DoNotOptimize(page.text.runs().size());
  }
  state.SetComplexityN(state.range(0));
}

void lengths(benchmark::internal::Benchmark* benchmark)
{
  for (const int length : {10'000, 100'000, 1'000'000})
    benchmark->Arg(length);
  benchmark->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
}

BENCHMARK(load)->Name("RichText/load")->Apply(lengths);
BENCHMARK(append)->Name("RichText/append")->Apply(lengths);
BENCHMARK(styleWhole)->Name("RichText/style")->Apply(lengths);
BENCHMARK(styleWords)->Name("RichText/style-words")->Apply(lengths);

} // namespace

} // namespace tarvelin::bench
