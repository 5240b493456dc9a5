// The last window of the campaign wizard: the generated files, and the way to a PBO file.
#include "campaign/finish.h"

#include "campaign/campaign_reset.h"
#include "core/desk.h"
#include "core/forms/frmcamp7.h"
#include "core/forms/frmsettings.h"
#include "core/messages.h"
#include "core/program.h"
#include "core/shared.h"

namespace tarvelin
{

namespace
{

constexpr int overviewFile = 2;
constexpr std::string_view files[] = {"\\Description.ext", "\\Stringtable.csv", "\\Overview.html"};

/// The campaign's folder without its suffix.
std::string campaignBase()
{
  const std::string_view between = shared.CestaKampane.ends_with('\\') ? "" : "\\";
  return shared.CestaKampane + std::string(between) + shared.JmenoKampane;
}

void souborylist_Change()
{
  const auto file = static_cast<std::size_t>(frmcamp7.souborylist.value());
  frmcamp7.ukaz.navigate(campaignBase() + ".Eden" + std::string(files[file]));
}

/// The template of the arguments with its two words replaced, token by token. Nothing is put in quotes.
std::string pboArguments()
{
  std::string arguments;
  std::string_view rest = shared.Nastaveni.ParametryPbo;
  for (;;)
  {
    const std::size_t end = rest.find(',');
    const std::string_view token = rest.substr(0, end);
    if (token == Texty(92))
      arguments += campaignBase() + ".Eden\\mission.sqm";
    else if (token == Texty(93))
      arguments += campaignBase() + ".pbo";
    else
      arguments += token;
    if (end == std::string_view::npos)
      return arguments;
    arguments += ',';
    rest.remove_prefix(end + 1);
  }
}

void Command1_Click()
{
  if (shared.Nastaveni.CestaPbo.empty())
  {
    tell(Hlasky(message::noPboUtility), Icon::critical);
    frmsettings.show();
    return;
  }
  desk().launch(shared.Nastaveni.CestaPbo, pboArguments(), programFolder());
}

void cmdok_Click()
{
  ResetKampan();
  frmcamp7.hide();
}

} // namespace

void showFinishedCampaign()
{
  if (frmcamp7.souborylist.value() == overviewFile)
    souborylist_Change(); // left there by the campaign before
  else
    frmcamp7.souborylist.set(overviewFile);
  frmcamp7.show();
}

void attachCampaignFinish()
{
  frmcamp7.souborylist.onChange = souborylist_Change;
  frmcamp7.Command1.onClick = Command1_Click;
  frmcamp7.cmdok.onClick = cmdok_Click;
}

} // namespace tarvelin
