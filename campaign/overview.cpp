#include "campaign/overview.h"

#include "campaign/path_names.h"
#include "core/attempt.h"
#include "core/forms/frmcampobr.h"
#include "core/forms/frmopen.h"
#include "core/forms/tmpfrm.h"
#include "core/logged_steps.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "mission/page.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace tarvelin
{

namespace
{

/// The game looks for the picture beside the page; one that could not be copied keeps its tag.
void addPicture(std::string& page, const LoggedSteps& steps)
{
  if (shared.CestaKampane.empty() || shared.JmenoKampane.empty() || shared.ObrazekKampane.empty())
    return;
  const std::string name = "pic." + right(shared.ObrazekKampane, 3);
  const std::string folder = shared.CestaKampane + "\\" + shared.JmenoKampane + ".Eden\\";
  steps([&] { platform::copyFileOver(shared.ObrazekKampane, folder + name); });
  addLine(page, R"(<P align="center">)");
  steps(
      [&]
      {
        const auto size = [](const Combo& combo) { return std::to_string(combo.tag(combo.index())); };
        // no blank in front of the width: the game takes it
        addLine(page, "<IMG src=\"" + name + "\"width=\"" + size(frmcampobr.Sirka) + "\" height=\"" +
                          size(frmcampobr.Vyska) + "\">");
      });
  page += "</P>";
}

void frmcampobr_Load()
{
  for (Combo* const combo : {&frmcampobr.Sirka, &frmcampobr.Vyska})
  {
    combo->clear();
    for (int size = 2; size <= 256; size *= 2)
      combo->add(std::to_string(size), size);
  }
  frmcampobr.Sirka.select(6);
  frmcampobr.Vyska.select(5);
  attempt([] { frmcampobr.txtkampover.set(Texty(8)); });
}

void cmdopen_Click()
{
  shared.RezimOtevreni = 0;
  Frmopen.ProKampan = true;
  Frmopen.showModal();
  if (upper(right(shared.ObrazekKampane, 3)) == "JPG")
    for (Picture* const picture : {&frmcampobr.imgnahled, &tmpfrm.tmpkamppic})
      attempt([&] { picture->load(shared.ObrazekKampane); });
  frmcampobr.lbljmeno.setCaption(JmenoZCesty(shared.ObrazekKampane));
}

void cmdnoimage_Click()
{
  shared.ObrazekKampane.clear();
  frmcampobr.lbljmeno.setCaption("");
  frmcampobr.imgnahled.clear();
  Frmopen.ProKampan = false;
}

} // namespace

void UlozKampanOverview(const std::string& cesta, const std::string& text)
{
  const LoggedSteps steps(
      [&](const Failure& failure)
      {
        return "Nastala chyba při vytváření overview pro kampaň do: " + cesta + ", " + failureText(failure) +
               std::string(crlf);
      });
  ZapisLog("Vytváření overview pro kampaň do: " + cesta + ", " + platform::timeText() + std::string(crlf));
  std::string page = pageHead("Overview", "Morvane");
  addLine(page, R"(<H2 align="center"><A name="Main">)" + shared.JmenoKampane + "</A></H2>");
  addLine(page, "<BR><BR>");
  addPicture(page, steps);
  addLine(page, "<BR><BR>");
  for (const std::string_view line : {std::string_view("<P>"), std::string_view(text), std::string_view("</P>"),
                                      std::string_view("<BR><BR>"), std::string_view("</BODY>")})
    addLine(page, line);
  page += "</HTML>";
  tmpfrm.tmptxt1.set(page);
  steps([&] { writeText(cesta, tmpfrm.tmptxt1.text()); });
  ZapisLog("Konec vytváření overview pro kampaň" + std::string(crlf));
}

void attachCampaignOverview()
{
  frmcampobr.onLoad = frmcampobr_Load;
  frmcampobr.cmdopen.onClick = cmdopen_Click;
  frmcampobr.cmdnoimage.onClick = cmdnoimage_Click;
}

} // namespace tarvelin
