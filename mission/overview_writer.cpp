#include "mission/overview_writer.h"

#include "core/forms/frmmain.h"
#include "core/forms/tmpfrm.h"
#include "core/logged_steps.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "mission/page.h"
#include "platform/files.h"

namespace tarvelin
{

namespace
{

std::string chosenSize(const Combo& sizes)
{
  return std::to_string(sizes.tag(sizes.index()));
}

/// Whatever the picture was called, in the mission folder it is "pic" and its extension.
std::string imageTag()
{
  return "<IMG src=\"pic." + right(shared.CilObrazku, 3) + "\" width=\"" + chosenSize(frmmain.Sirka) + "\" height=\"" +
         chosenSize(frmmain.Vyska) + "\">";
}

void addPicture(std::string& page, const LoggedSteps& steps)
{
  page += R"(<P align="center">)";
  steps([] { platform::copyFileOver(shared.CestaObrazku, shared.CilObrazku); });
  steps([&] { addLine(page, imageTag()); });
  addLine(page, "</P><BR><BR>");
}

} // namespace

void UlozOverview(const std::string& cesta, const std::string& text)
{
  const LoggedSteps steps(
      [&](const Failure& failure)
      {
        return "Nastala chyba při ukládání Overview.html do složky: " + cesta + ", " + failureText(failure) +
               std::string(crlf);
      });
  ZapisLog("Vytváření: " + cesta + std::string(crlf));
  steps([&] { platform::writeFile(cesta, {}); });
  std::string page = pageHead("Overview");
  addLine(page, R"(<H2 align="center"><A name="Main">)" + frmmain.txtJmenoMise.text() + "</A></H2>");
  addLine(page, "<BR><BR>");
  if (!shared.CilObrazku.empty())
    addPicture(page, steps);
  addLine(page, "<P>");
  addLine(page, text);
  addLine(page, "</P>");
  addLine(page, "<BR><BR>");
  addLine(page, "</BODY>");
  page += "</HTML>";
  tmpfrm.tmptxt1.set(page);
  steps([&] { writeText(cesta, tmpfrm.tmptxt1.text()); });
}

} // namespace tarvelin
