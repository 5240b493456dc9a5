#include "panels/picture_picker.h"

#include "core/attempt.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmopen.h"
#include "core/forms/tmpfrm.h"
#include "core/picker.h"
#include "core/procedures.h"
#include "core/program.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "panels/identities.h"
#include "platform/files.h"

#include <chrono>
#include <random>

namespace tarvelin
{

namespace
{

constexpr std::int16_t picksMissionPicture = 0;
constexpr std::int16_t picksTitlePicture = 9;

void Frmopen_Load()
{
  startPickerIn(shared.CestaHry, Frmopen.Drive1, Frmopen.Dir1);
}

void Frmopen_Activate()
{
  Frmopen.setCaption(Frmopen.ProOblicej ? "Načíst obrázek obličeje..." : "Načíst obrázek...");
  logLine(Frmopen.ProOblicej ? "Načítání obrázku pro obličej" : "Načítání obrázku");
  Frmopen.File1.refresh();
}

void File1_Click()
{
  shared.CestaObrazku = chosenFile(Frmopen.File1);
  if (Frmopen.ProKampan)
    shared.ObrazekKampane = shared.CestaObrazku;
  attempt([] { Frmopen.imgnahled.load(shared.CestaObrazku); }); // a .paa cannot be shown
}

void takeFace()
{
  setCustomFace(chosenFile(Frmopen.File1));
  Frmopen.File1.setPattern("*.jpg*");
}

void takeMissionPicture()
{
  const std::string& name = Frmopen.File1.selected();
  shared.CestaObrazku = chosenFile(Frmopen.File1); // the highlight outlives a cancel, the path does not
  shared.CilObrazku = shared.CestaMise + "pic." + right(name, 3);
  frmmain.lbljmeno.setCaption(name);
  Frmopen.File1.setPattern("*.jpg;*.paa*");
}

void cmdOk_Click()
{
  logLine("Načítání obrázku z: " + chosenFile(Frmopen.File1));
  if (!Frmopen.File1.selected().empty())
  {
    if (Frmopen.ProOblicej)
      takeFace();
    else if (!Frmopen.ProKampan && shared.RezimOtevreni != picksTitlePicture)
      takeMissionPicture();
  }
  Frmopen.hide();
}

void cmdstorno_Click()
{
  shared.CestaObrazku.clear();
  if (Frmopen.ProKampan)
    shared.ObrazekKampane.clear();
  logLine("Stornování operace Načítání obrázku");
  Frmopen.hide();
}

void showOverviewPicture()
{
  attempt([] { frmmain.Picnahled.load(shared.CestaObrazku); });
  attempt(
      []
      {
        tmpfrm.tmppic1.load(shared.CestaObrazku);
        frmmain.lblsize.setCaption(std::to_string(tmpfrm.tmppic1.width()) + " x " +
                                   std::to_string(tmpfrm.tmppic1.height()));
      });
}

void cmdopen_Click()
{
  shared.RezimOtevreni = picksMissionPicture;
  Frmopen.ProOblicej = false;
  Frmopen.ProKampan = false;
  Frmopen.showModal();
  if (upper(right(shared.CestaObrazku, 3)) == "JPG")
    showOverviewPicture();
}

void cmdnic_Click()
{
  shared.CestaObrazku.clear();
  shared.CilObrazku.clear();
  frmmain.Picnahled.clear();
  frmmain.lbljmeno.setCaption("");
}

} // namespace

void NactiObrazek()
{
  const std::string folder = programFile("\\bfdata\\pic");
  std::vector<std::string> names;
  attempt([&] { names = platform::listFiles(folder); });
  if (names.empty())
    return;
  std::minstd_rand generator(
      static_cast<std::minstd_rand::result_type>(std::chrono::system_clock::now().time_since_epoch().count()));
  std::uniform_int_distribution<std::size_t> place(0, names.size() - 1);
  attempt([&] { frmmain.Ostrovy.load(folder + "\\" + names[place(generator)]); });
}

void attachPicturePicker()
{
  tieDiskLists(Frmopen.Drive1, Frmopen.Dir1, Frmopen.File1);
  Frmopen.onLoad = Frmopen_Load;
  Frmopen.onActivate = Frmopen_Activate;
  Frmopen.File1.onClick = File1_Click;
  Frmopen.cmdOk.onClick = cmdOk_Click;
  Frmopen.cmdstorno.onClick = cmdstorno_Click;
  frmmain.cmdopen.onClick = cmdopen_Click;
  frmmain.cmdnic.onClick = cmdnic_Click;
  procedures.NactiObrazek = NactiObrazek;
}

} // namespace tarvelin
