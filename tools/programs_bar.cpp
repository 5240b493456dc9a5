#include "tools/programs_bar.h"

#include "core/binary_file.h"
#include "core/desk.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmsettings.h"
#include "core/forms/tmpfrm.h"
#include "core/logged_steps.h"
#include "core/procedures.h"
#include "core/program.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "platform/files.h"
#include "platform/program_icon.h"

#include <algorithm>

namespace tarvelin
{

namespace
{

constexpr int iconExtent = 36; // an icon of 32 pixels with its edges
constexpr int barExtent = 684; // what the window shows of the strip
constexpr std::string_view iconFolder = "\\Bfdata\\programIcons";

LoggedSteps stepsOf(std::string words)
{
  return LoggedSteps([words = std::move(words)](const Failure& failure)
                     { return words + failureText(failure) + std::string(crlf); });
}

std::string iconFile(const std::string& name)
{
  return programFile(iconFolder) + "\\" + name + ".bmp";
}

/// The parameters of a program with the mission's folder in the place of its tag; other tags are dropped, and what
/// stands behind a "<" that is never closed.
std::string expanded(std::string_view parameters)
{
  std::string result;
  while (!parameters.empty())
  {
    const std::size_t open = std::min(parameters.find('<'), parameters.size());
    result += parameters.substr(0, open);
    parameters.remove_prefix(open);
    const std::size_t close = parameters.find('>');
    if (close == std::string_view::npos)
      break;
    if (parameters.substr(1, close - 1) == Texty(103))
      result += shared.CestaMise;
    parameters.remove_prefix(close + 1);
  }
  return result;
}

void Image1_Click(int index)
{
  attempt(
      [&]
      {
        const ZaznamProgramu& program = shared.Programy.at(index - 1);
        desk().launch(program.Cesta, expanded(program.Parametry), "");
      });
}

void emptyBar()
{
  int last = 0;
  frmmain.Image1.each([&](Picture&, int index) { last = std::max(last, index); });
  for (; last > 0; --last)
    frmmain.Image1.unload(last);
  frmmain.HScroll1.setRange(0, 0);
}

void HScroll1_Change()
{
  frmmain.Picture2.place(-frmmain.HScroll1.value(), frmmain.Picture2.extent());
}

} // namespace

void UlozitConfig(const std::string& path)
{
  const LoggedSteps step = stepsOf("Chyba v UlozitConfig: " + path + ", ");
  BinaryWriter file;
  for (int i = 0; i <= shared.PocetProgramu; ++i)
    step(
        [&]
        {
          const ZaznamProgramu& program = shared.Programy.at(i);
          for (const std::string* const text : {&program.Nazev, &program.Cesta, &program.Parametry})
            file.put(std::string_view(*text));
        });
  step([&] { platform::writeFile(path, file.bytes()); });
}

void LoadPrograms(const std::string& path)
{
  const LoggedSteps step = stepsOf("Podprogram LoadPrograms: " + path + ", ");
  emptyBar();
  frmsettings.seznamprogramu.clear();
  shared.Programy.erase();
  shared.PocetProgramu = -1;
  step(
      [&]
      {
        for (BinaryReader file(platform::readFile(path)); !file.atEnd();)
        {
          ZaznamProgramu program;
          for (std::string* const text : {&program.Nazev, &program.Cesta, &program.Parametry})
            file.get(*text);
          if (file.cut())
            throw Failure(Fault::pastEnd);
          const std::int16_t index = counted(shared.PocetProgramu);
          shared.Programy.redimPreserve(index);
          shared.Programy.at(index) = std::move(program);
          shared.PocetProgramu = index;
          frmsettings.seznamprogramu.add(Texty(97) + " " + std::to_string(index + 1), index);
        }
      });
  for (Field* const field : std::initializer_list<Field*>{&frmsettings.cmddel, &frmsettings.txtnazev,
                                                          &frmsettings.txtcesta, &frmsettings.txtparams})
    field->enable(shared.PocetProgramu >= 0);
  MakeProgramBar(false);
}

void LoadAndSaveIcons(const std::string& executable, const std::string& name)
{
  const LoggedSteps step = stepsOf("Chyba v LoadAndSaveIcons: ");
  step(
      [&]
      {
        const auto image = platform::programIcon(executable);
        if (!image)
          throw Failure(Fault::invalidPicture);
        if (!platform::folderExists(programFile(iconFolder)))
          platform::createFolder(programFile(iconFolder));
        platform::writeFile(iconFile(name), platform::bitmapBytes(*image));
        tmpfrm.Image1.load(iconFile(name));
      });
}

void MakeProgramBar(bool rebuild)
{
  if (rebuild)
    emptyBar();
  const int count = shared.PocetProgramu + 1;
  for (int i = 0; i < count; ++i)
  {
    Picture& icon = frmmain.Image1.load(i + 1);
    icon.onClick = [index = i + 1] { Image1_Click(index); };
    icon.place(i * iconExtent, iconExtent);
    attempt([&] { icon.load(iconFile(shared.Programy.at(i).Nazev)); }); // not every program has an icon
  }
  const int strip = count * iconExtent;
  frmmain.Picture2.place(0, strip);
  frmmain.HScroll1.setRange(0, std::max(0, strip - barExtent));
  frmmain.HScroll1.set(0);
  frmmain.Picture1.show(count > 0);
  frmmain.Picture2.show(count > 0);
  frmmain.HScroll1.show(strip > barExtent);
}

void attachProgramsBar()
{
  frmmain.HScroll1.onChange = HScroll1_Change;
  procedures.LoadPrograms = LoadPrograms;
}

} // namespace tarvelin
