#include "panels/sound_tools.h"

#include "core/attempt.h"
#include "core/desk.h"
#include "core/forms/frmload.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmopen2.h"
#include "core/messages.h"
#include "core/picker.h"
#include "core/program.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/paths.h"

#include <chrono>
#include <thread>

namespace tarvelin
{

namespace
{

constexpr std::string_view toolFolder = "\\Bfdata\\oggwav\\";
constexpr double patience = 30; // seconds until a copy that does not arrive is complained about

constexpr std::int16_t choosesFolder = 4;
constexpr std::int16_t choosesProgram = 7;
constexpr int unchanged = -1;

/// A value of RezimOtevreni as this picker knows it.
struct PickerMode
{
  std::int16_t mode;
  int title;               ///< entry of Texty
  std::string_view filter; ///< empty: the last one stays
  std::string_view tool;   ///< what starts on the chosen file; empty when the caller reads the choice
};

constexpr PickerMode modes[] = {
    {2, 0, "*.wav*", "oggenc.exe"},  {3, 1, "*.wav*", "wavetolip.exe"}, {choosesFolder, 2, "", ""},
    {5, 98, "*.wss*", "wssdec.exe"}, {6, 99, "*.wav*", "wsscod.exe"},   {choosesProgram, 100, "*.exe;*.bat;*.com*", ""},
    {8, unchanged, "*.ogg*", ""},
};

/// The field that a program is picked for.
Text* programField = nullptr;

void fillProgramField(const std::string& path)
{
  if (shared.RezimOtevreni == choosesProgram && programField)
    programField->set(path);
}

const PickerMode* currentMode()
{
  for (const PickerMode& mode : modes)
    if (mode.mode == shared.RezimOtevreni)
      return &mode;
  return nullptr;
}

void convert(std::int16_t mode)
{
  shared.RezimOtevreni = mode;
  frmopen2.showModal();
}

void frmopen2_Load()
{
  startPickerIn(programFolder(), frmopen2.Drive1, frmopen2.Dir1);
}

void frmopen2_Activate()
{
  if (const PickerMode* const mode = currentMode())
  {
    frmopen2.File1.offerPrograms(mode->mode == choosesProgram);
    if (mode->title != unchanged)
      attempt([&] { frmopen2.setCaption(Texty(mode->title)); });
    if (!mode->filter.empty())
      attempt([&] { frmopen2.File1.setPattern(mode->filter); });
    frmopen2.File1.enable(mode->mode != choosesFolder);
  }
  attempt([] { frmopen2.Drive1.refresh(); });
  attempt([] { frmopen2.File1.refresh(); });
  attempt([] { frmopen2.Dir1.refresh(); });
}

void File1_Click()
{
  frmopen2.Slozka = frmopen2.File1.path();
  frmopen2.Soubor = frmopen2.File1.selected();
  fillProgramField(chosenFile(frmopen2.File1));
}

void Command1_Click()
{
  frmopen2.Soubor = "";
  frmopen2.Slozka = "";
  frmopen2.hide();
  fillProgramField("");
}

void runMode()
{
  const PickerMode* const mode = currentMode();
  if (mode && !mode->tool.empty())
    SpustAkci(std::string(mode->tool));
  if (mode && mode->mode == choosesFolder)
  {
    shared.SlozkaKampane = frmopen2.Dir1.path();
    shared.CestaKampane = frmopen2.Dir1.path();
  }
}

void cmdOk_Click()
{
  // The line about the failure is compared with the log instead of added to it, and the outcome is all that is kept.
  const auto loseLog = [](const Failure&) { frmload.log.set("False"); };
  attempt(runMode, loseLog);
  attempt([] { frmopen2.hide(); }, loseLog);
}

void tellSlowCopy()
{
  std::string text;
  for (const int piece : message::copySlow)
    text += Hlasky(piece);
  tell(text + programFile(toolFolder) + std::string(crlf) + Hlasky(message::copySlowEnd), Icon::critical);
}

/// Waits until the copy is there; after a while it tells the user and waits no more.
void awaitFile(const std::string& path)
{
  const double since = platform::monotonicSeconds();
  while (!platform::fileExists(path))
  {
    if (platform::monotonicSeconds() - since > patience)
      return tellSlowCopy();
    desk().breathe();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
}

} // namespace

void SpustAkci(const std::string& program)
{
  const std::string file = frmopen2.Soubor;
  const std::string source = frmopen2.Slozka;
  if (file.empty() || source.empty())
  {
    attempt([] { tell(Hlasky(message::noSoundChosen)); });
    return;
  }
  ZapisLog("Spustena procedura SpustAkci: " + file + " z " + source + " ." + std::string(crlf));
  const std::string folder = programFile(toolFolder);
  attempt([&] { platform::copyFileOver(source + "\\" + file, folder + file); });
  attempt([&] { awaitFile(folder + file); });
  attempt([&] { platform::setCurrentFolder(folder); });
  // the name as it stands: a blank in it parts it into several arguments
  attempt([&] { desk().launch(program, file, folder); });
}

void chooseProgram(Text& box)
{
  shared.RezimOtevreni = choosesProgram;
  programField = &box;
  attempt([] { frmopen2.showModal(); });
  programField = nullptr;
}

void attachSoundTools()
{
  tieDiskLists(frmopen2.Drive1, frmopen2.Dir1, frmopen2.File1);
  frmopen2.onLoad = frmopen2_Load;
  frmopen2.onActivate = frmopen2_Activate;
  frmopen2.File1.onClick = File1_Click;
  frmopen2.cmdOk.onClick = cmdOk_Click;
  frmopen2.Command1.onClick = Command1_Click;
  frmmain.mnuwavogg.onClick = [] { convert(2); };
  frmmain.mnuwavlip.onClick = [] { convert(3); };
  frmmain.mnuwsswav.onClick = [] { convert(5); };
  frmmain.mnuwavwss.onClick = [] { convert(6); };
}

} // namespace tarvelin
