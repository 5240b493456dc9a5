#include "panels/sound_copy.h"

#include "core/attempt.h"
#include "core/desk.h"
#include "core/folder_scan.h"
#include "core/forms/form1.h"
#include "core/forms/frmdalsinast.h"
#include "core/forms/frmmain.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "platform/files.h"

#include <utility>

namespace tarvelin
{

namespace
{

/// Runs one step; a failure is logged and costs that step only.
template <class Step> void step(Step&& run)
{
  attempt(std::forward<Step>(run),
          [](const Failure& failure)
          {
            ZapisLog("Nastala chyba při kopírování zvuku do složky: " + shared.CestaMise + ", " + failureText(failure) +
                     std::string(crlf));
          });
}

std::string nameOf(const std::string& path)
{
  return path.substr(SlozkaSouboru(path).size());
}

/// Makes a folder of the mission when there is none.
void needFolder(const char* name)
{
  step(
      [&]
      {
        if (!platform::folderExists(shared.CestaMise + name))
          platform::createFolder(shared.CestaMise + name);
      });
}

void makeFolders()
{
  for (const List* const list :
       {&frmmain.seznamradia, &frmmain.seznamzvuku, &frmdalsinast.seznamrozzvuku, &frmdalsinast.List1})
    if (list->count() > 0)
    {
      needFolder("sound");
      break;
    }
  if (frmmain.seznamhudby.count() > 0)
    needFolder("music");
}

void showStage(int text)
{
  step([&] { Form1.lblstav.setCaption(Texty(text)); });
}

void showFile(int text, const std::string& name)
{
  step([&] { Form1.Label1.setCaption(Texty(text) + " " + name); });
}

void copy(const std::string& from, const std::string& to)
{
  const auto breathe = [] { desk().breathe(); };
  step([&] { platform::copyFileOver(from, to, breathe); });
  breathe();
}

void progressTo(int count)
{
  step([&] { Form1.prubeh.setRange(0, count); });
}

void progress()
{
  step([] { Form1.prubeh.set(Form1.prubeh.value() + 1); });
}

/// A list of frmmain, marked or not. `folder` lies in the mission's.
template <class Record>
void copyList(const List& list, const Array<Record>& records, int stage, int file, const std::string& folder)
{
  if (list.count() == 0)
    return;
  showStage(stage);
  progressTo(list.count());
  for (int i = 0; i < list.count(); ++i)
  {
    step(
        [&]
        {
          const Record& record = records.at(list.tag(i));
          showFile(file, record.Soubor);
          copy(record.Cesta + "\\" + record.Soubor, shared.CestaMise + folder + record.Soubor);
        });
    progress();
  }
}

/// A file that a record knows by its full path.
void copyByPath(const std::string& path, const std::string& folder)
{
  showFile(82, nameOf(path));
  copy(path, shared.CestaMise + folder + nameOf(path));
}

void copyEnvironment()
{
  showStage(105);
  for (int i = 0; i < frmdalsinast.seznamrozzvuku.count(); ++i)
    if (frmdalsinast.seznamrozzvuku.marked(i))
      step(
          [&]
          {
            copyByPath(shared.Okoli.at(i).Den, "sound\\");
            copyByPath(shared.Okoli.at(i).Noc, "sound\\");
          });
}

/// As many classes as there are environment sounds: the loop has always been bound to the neighbour's list.
void copyEffects()
{
  const int classes = frmdalsinast.List1.count();
  if (classes == 0)
    return;
  showStage(105);
  progressTo(classes);
  for (int i = 0; i < classes && i < frmdalsinast.seznamrozzvuku.count(); ++i)
  {
    step(
        [&]
        {
          // looked up each time: the user may act between two files
          const auto sounds = [&]() -> const auto&
          {
            return shared.Sfx.at(i).Zvuky;
          };
          for (int j = 0; j < sounds().bound(); ++j)
            copyByPath(sounds().at(j).Soubor, "sound\\");
        });
    progress();
  }
}

/// Pictures of titles lie in the mission's folder itself.
void copyTitlePictures()
{
  for (int i = 0; i < frmdalsinast.List3.count(); ++i)
    if (frmdalsinast.List3.marked(i))
      step(
          [&]
          {
            const auto controls = [&]() -> const auto&
            {
              return shared.Tituly.at(i).Prvky;
            };
            for (int j = 0; j <= controls().bound(); ++j)
              if (controls().at(j).Druh == 1)
                copyByPath(controls().at(j).Text, "");
          });
}

} // namespace

void KopirujZvuky()
{
  step([] { Form1.show(); });
  makeFolders();
  copyList(frmmain.seznamradia, shared.Radia, 81, 84, "sound\\");
  copyList(frmmain.seznamzvuku, shared.Zvuky, 82, 82, "sound\\");
  copyList(frmmain.seznamhudby, shared.Hudby, 83, 82, "music\\");
  copyEnvironment();
  copyEffects();
  copyTitlePictures();
  Form1.hide();
}

void attachSoundCopy()
{
  Form1.Command1.onClick = [] { Form1.hide(); }; // the copying goes on to its end
}

} // namespace tarvelin
