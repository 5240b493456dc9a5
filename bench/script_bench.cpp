// Colouring of scripts: a whole one must take time with its length and no faster, a typed character hardly any.
#include "core/forms/form.h"
#include "core/forms/frmrejstrik.h"
#include "core/forms/rich_text.h"
#include "core/settings.h"
#include "core/shared.h"
#include "script/colouring.h"

#include <benchmark/benchmark.h>
#include <string>

namespace tarvelin::bench
{

namespace
{

constexpr int catalogueSize = 3000;

struct Editor : Form
{
  Editor() : Form("editor", "")
  {
    setDefaultSettings();
    if (frmrejstrik.seznam.count() == 0)
      for (int i = 0; i < catalogueSize; ++i)
        frmrejstrik.seznam.add("command" + std::to_string(i * 7919 % catalogueSize), 1 + i % 5);
  }

  RichText skript{this, "skript"};
};

/// A script of that many bytes: words of the catalogue and others, numbers, strings, comments.
std::string script(std::int64_t size)
{
  std::string text;
  for (unsigned i = 0; static_cast<std::int64_t>(text.size()) < size; ++i)
    text += "_u" + std::to_string(i) + " = COMMAND" + std::to_string(i * 31U % catalogueSize) +
            " \"hráč\" + 17 ; comment " + std::to_string(i) + "\r\n~0.5\r\n";
  return text;
}

void colourWhole(benchmark::State& state)
{
  const std::string text = script(state.range(0));
  Editor editor;
  for (auto _ : state)
  {
    state.PauseTiming();
    editor.skript.set(text);
    state.ResumeTiming();
    ObarviSkript(editor.skript);
  }
  state.SetComplexityN(state.range(0));
}

void typeAtEnd(benchmark::State& state)
{
  Editor editor;
  editor.skript.set(script(state.range(0)));
  ObarviSkript(editor.skript);
  editor.skript.select(editor.skript.length(), 0);
  editor.skript.keepSteps(); // as the window does
  editor.skript.onChange = [&] { colourTyped(editor.skript); };
  constexpr std::string_view typed = "COMMAND17 x ; note\r\n";
  std::size_t at = 0;
  for (auto _ : state)
    editor.skript.userType(typed.substr(at++ % typed.size(), 1));
}

BENCHMARK(colourWhole)->Range(1 << 17, 1 << 20)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
BENCHMARK(typeAtEnd)->Arg(1 << 20)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace tarvelin::bench
