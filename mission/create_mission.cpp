#include "mission/create_mission.h"

#include "core/attempt.h"
#include "core/forms/frmmain.h"
#include "core/identity_rows.h"
#include "core/shared.h"
#include "mission/briefing_writer.h"
#include "mission/description_writer.h"
#include "mission/overview_writer.h"
#include "platform/files.h"

#include <vector>

namespace tarvelin
{

namespace
{

void writeBriefing(const std::string& name)
{
  attempt([&] { UlozBriefing(shared.CestaMise + name, frmmain.txtBriefink.text(), frmmain.txtPoznamky.text()); });
}

void writeOverview(const std::string& name)
{
  attempt([&] { UlozOverview(shared.CestaMise + name, frmmain.txtOverview.text()); });
}

void writeDescription(const std::string& name)
{
  attempt([&] { UlozDescription(shared.CestaMise + name); });
}

/// Names of a page's files in the chosen language variants.
std::vector<std::string> variants(const std::string& page, const std::string& language)
{
  if (language.empty())
    return {page + ".html"};
  if (language != "All")
    return {page + "." + language + ".html"};
  std::vector<std::string> names{page + ".html"};
  for (const char* const one : {"German", "English", "Spanish", "Italian", "French", "Czech"})
    names.push_back(page + "." + one + ".html");
  return names;
}

void writeBriefings()
{
  for (const std::string& name : variants("Briefing", shared.JazykBrifing))
    writeBriefing(name);
}

void writeOverviews()
{
  for (const std::string& name : variants("Overview", shared.JazykOverview))
    writeOverview(name);
}

/// Copies over an older file, read-only or not. A picture that lies there already stays.
void copyPicture(const std::string& from, const std::string& to)
{
  if (platform::sameFile(from, to))
    return;
  if (platform::copyFile(from, to, true))
    return;
  platform::clearAttributes(to);
  attempt([&] { platform::deleteFile(to); });
  platform::copyFile(from, to, true);
}

/// The tail of every creation: the overview picture and the faces. All faces go to the one folder of the chosen player,
/// so the last one stays; while none is chosen the copy has no place to go.
void copyPictures()
{
  if (!shared.CestaObrazku.empty() && !shared.CilObrazku.empty())
    copyPicture(shared.CestaObrazku, shared.CilObrazku);
  const auto faces = static_cast<int>(identityRows(IdentitySide::mission).size());
  for (int i = 0; i < faces; ++i)
    attempt(
        [&]
        {
          const std::string& face = shared.Identity.at(i).Obrazek;
          if (!face.empty() && !shared.SlozkaUzivatele.empty())
            copyPicture(face, shared.SlozkaUzivatele + "\\face.jpg");
        });
}

void cmdvytvor_Click()
{
  const int chosen = frmmain.seznamakci.index();
  const int tag = chosen < 0 ? 0 : frmmain.seznamakci.tag(chosen);
  if (tag == 1 || tag == 4)
    writeBriefings();
  if (tag == 3 || tag == 4)
    writeDescription("Description.ext");
  if (tag == 2 || tag == 4)
    writeOverviews();
  copyPictures();
}

} // namespace

void createBriefing()
{
  writeBriefing("briefing.html");
}

void createOverview()
{
  writeOverview("overview.html");
}

void createDescription()
{
  writeDescription("description.ext");
}

void attachCreateMission()
{
  frmmain.cmdvytvor.onClick = cmdvytvor_Click;
}

} // namespace tarvelin
