#include "campaign/copying.h"

#include "campaign/path_names.h"
#include "campaign/tree.h"
#include "core/attempt.h"
#include "core/desk.h"
#include "core/forms/frmcamp5.h"
#include "core/forms/frmcopy.h"
#include "core/logged_steps.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "platform/clock.h"
#include "platform/files.h"

#include <algorithm>
#include <vector>

namespace tarvelin
{

namespace
{

bool copies = false;

void breathe()
{
  desk().breathe();
}

void begin(Progress& bar, int count)
{
  if (count > 0)
    bar.setRange(0, count);
  else
    bar.set(bar.minimum());
}

void advance(Progress& bar)
{
  if (bar.value() < bar.maximum())
    bar.set(bar.value() + 1);
}

/// One tree of folders on its way. While it is copied the interface runs, so nothing of the shared values is held.
class FolderCopy
{
public:
  FolderCopy(const std::string& source, const std::string& target) : m_target(target)
  {
    // A link to a folder above the source would bring the source along.
    for (std::size_t at = source.find('\\'); at != std::string::npos; at = source.find('\\', at + 1))
      m_open.push_back(source.substr(0, at + 1));
  }

  void copy(const std::string& source, const std::string& target)
  {
    const LoggedSteps steps(
        [&](const Failure& failure)
        {
          return "Nastala chyba při kopírování souboru: " + source + " do: " + target + " , " + failureText(failure) +
                 std::string(crlf);
        });
    std::vector<std::string> folders;
    const bool found = steps([&] { folders = platform::listFolders(source); });
    if (!platform::folderExists(target))
      steps([&] { platform::createFolder(target); });
    if (!found)
      return;
    m_open.push_back(source);
    m_seen.push_back(source);
    for (const std::string& name : folders)
    {
      const std::string folder = source + "\\" + name;
      const int links = platform::isLink(folder) ? 1 : 0;
      if (holdsItself(folder) || (links > 0 && m_links > 0 && isAmong(m_seen, folder)))
        continue;
      m_links += links;
      copy(folder, target + "\\" + name);
      m_links -= links;
      breathe();
    }
    m_open.pop_back();
    copyFiles(source, target, steps);
  }

private:
  static bool isAmong(const std::vector<std::string>& folders, const std::string& folder)
  {
    return std::ranges::any_of(folders, [&](const std::string& other) { return platform::sameFile(folder, other); });
  }

  bool holdsItself(const std::string& folder) const
  {
    return platform::sameFile(folder, m_target) || isAmong(m_open, folder);
  }

  static void copyFiles(const std::string& source, const std::string& target, const LoggedSteps& steps)
  {
    std::vector<std::string> files;
    steps([&] { files = platform::listFiles(source); });
    begin(frmcopy.prubeh2, static_cast<int>(files.size()));
    for (const std::string& name : files)
    {
      steps([&] { platform::copyFileOver(source + "\\" + name, target + "\\" + name, breathe); });
      advance(frmcopy.prubeh2);
      frmcopy.refresh();
      attempt([&] { frmcopy.lbljmeno.setCaption(Texty(84) + " " + name); });
      breathe();
    }
  }

  std::string m_target;
  std::vector<std::string> m_open; ///< the folders above the one in hand, and those above the source
  std::vector<std::string> m_seen; ///< all so far: a link inside a linked folder brings none of them again, or folders
                                   ///< that link to each other would be copied in every order
  int m_links = 0;                 ///< links on the way to the folder in hand
};

/// The way of a campaign to its folder.
class CampaignCopy
{
public:
  explicit CampaignCopy(const std::string& path)
      : m_path(path), m_folder(path + "\\" + shared.JmenoKampane + ".Eden"), m_missions(m_folder + "\\Missions")
  {
  }

  void run()
  {
    ZapisLog("Začíná kopírování kampaně do: " + m_path + "\\" + shared.JmenoKampane + ", " + platform::timeText() +
             std::string(crlf));
    frmcopy.show();
    frmcopy.refresh();
    begin(frmcopy.prubeh1, 0);
    begin(frmcopy.prubeh2, 0);
    makeFolders();
    copyChapters();
    copyScores(shared.Odmeny, 78);
    copyScores(shared.Tresty, 79);
    copySounds();
    frmcopy.hide();
    ZapisLog("Konec kopírování kampaně," + platform::timeText() + std::string(crlf));
  }

private:
  void makeFolders()
  {
    if (!platform::folderExists(m_path))
      m_steps([&] { platform::createFolder(m_path); });
    for (const std::string& folder : {m_folder, m_folder + "\\DtaExt", m_missions})
      m_steps([&] { platform::createFolder(folder); });
  }

  /// Copies the folder of a mission under its own name.
  void copyMission(const std::string& mission) { KopirujSlozku(mission, m_missions + "\\" + JmenoZCesty(mission)); }

  void makeMissionFolder(const std::string& mission)
  {
    m_file = mission;
    m_steps([&] { platform::createFolder(m_missions + "\\" + JmenoZCesty(mission)); });
  }

  void copyChapters()
  {
    begin(frmcopy.prubeh1, shared.PocetKapitol);
    for (int chapter = 0; chapter <= shared.Kapitoly.bound(); ++chapter)
    {
      m_steps([&] { copyCutscene(chapter); });
      const int missions = SpocitejMise(chapter + 1);
      for (int mission = 0; mission < missions; ++mission)
      {
        m_steps([&] { copyChapterMission(chapter, mission); });
        advance(frmcopy.prubeh1);
      }
    }
  }

  void copyCutscene(int chapter)
  {
    const std::string cutscene = shared.Kapitoly.at(chapter).Cutscena;
    if (cutscene.empty())
      return;
    m_file = cutscene;
    copyMission(cutscene);
  }

  void copyChapterMission(int chapter, int number)
  {
    const std::string mission = shared.Kapitoly.at(chapter).Mise.at(number).Cesta;
    makeMissionFolder(mission);
    m_steps(
        [&]
        {
          frmcopy.lblmise.setCaption(Texty(76) + " " + std::to_string(chapter + 1) + " " + Texty(77) +
                                     std::to_string(number + 1));
        });
    copyMission(mission);
  }

  void copyScores(const Array<ZaznamHodnoceni>& records, int kind)
  {
    if (records.bound() <= 0)
      return;
    begin(frmcopy.prubeh1, records.bound());
    for (int record = 0; record <= records.bound(); ++record)
    {
      for (int island = 0; island < shared.PocetOstrovu; ++island)
        m_steps([&] { copyScore(records, record, island, kind); });
      advance(frmcopy.prubeh1);
    }
  }

  void copyScore(const Array<ZaznamHodnoceni>& records, int record, int island, int kind)
  {
    if (record > records.bound() || island > records.at(record).Soubory.bound())
      return; // the spare record has no missions
    const std::string mission = records.at(record).Soubory.at(island);
    if (mission.empty())
      return;
    makeMissionFolder(mission);
    m_steps([&] { frmcopy.lblmise.setCaption(Texty(77) + " " + JmenoZCesty(mission) + " " + Texty(kind)); });
    copyMission(mission);
  }

  void copySounds()
  {
    m_steps([] { frmcopy.lblmise.setCaption(Texty(80)); });
    const std::string sounds = m_folder + "\\DtaExt\\sound";
    const std::string music = m_folder + "\\DtaExt\\music";
    if (frmcamp5.seznamradia.count() > 0 || frmcamp5.seznamzvuku.count() > 0)
      makeWhenMissing(sounds);
    if (frmcamp5.seznamhudby.count() > 0)
      makeWhenMissing(music);
    copyList(frmcamp5.seznamradia, shared.RadiaKampane, sounds, 81, 84);
    copyList(frmcamp5.seznamzvuku, shared.ZvukyKampane, sounds, 82, 84);
    copyList(frmcamp5.seznamhudby, shared.HudbyKampane, music, 83, 80);
  }

  void makeWhenMissing(const std::string& folder)
  {
    if (!platform::folderExists(folder))
      m_steps([&] { platform::createFolder(folder); });
  }

  /// Every row of a list is copied, marked or not.
  template <class Record>
  void copyList(const List& list, const Array<Record>& records, const std::string& target, int title, int fileText)
  {
    if (list.count() == 0)
      return;
    m_steps([&] { frmcopy.lblmise.setCaption(Texty(title)); });
    begin(frmcopy.prubeh1, list.count());
    for (int row = 0; row < list.count(); ++row)
    {
      m_steps(
          [&]
          {
            const Record& record = records.at(list.tag(row));
            m_file = record.Soubor;
            platform::copyFileOver(record.Cesta + "\\" + record.Soubor, target + "\\" + record.Soubor, breathe);
          });
      m_steps([&] { frmcopy.lbljmeno.setCaption(Texty(fileText) + " " + m_file); });
      advance(frmcopy.prubeh1);
      advance(frmcopy.prubeh2);
      breathe();
    }
  }

  std::string m_path;
  std::string m_folder;
  std::string m_missions;
  std::string m_file; ///< the mission or sound in hand, for the log
  LoggedSteps m_steps{[this](const Failure& failure)
                      {
                        return "Nastala chyba při kopírování souborů kampaně do složky: " + m_path +
                               "Soubor: " + m_file + ", " + failureText(failure) + std::string(crlf);
                      }};
};

} // namespace

void KopirujSlozku(const std::string& zdroj, const std::string& cil)
{
  FolderCopy(zdroj, cil).copy(zdroj, cil);
}

void KopirujKampan(const std::string& cesta)
{
  if (copies)
    return;
  struct Running
  {
    Running() { copies = true; }
    ~Running() { copies = false; }
  } const running;
  CampaignCopy(cesta).run();
}

bool campaignIsCopied()
{
  return copies;
}

} // namespace tarvelin
