// What the panels do with the answers of the shared pickers.
#include "app/assemble.h"
#include "core/desk.h"
#include "core/forms/frmdalsinast.h"
#include "core/forms/frmopen.h"
#include "core/forms/frmopen2.h"
#include "core/shared.h"

#include <functional>
#include <gtest/gtest.h>

using namespace tarvelin;

namespace
{

/// Stands for the user in a picker; all else is left unanswered.
class PickingDesk : public Desk
{
public:
  PickingDesk() { setDesk(this); }
  ~PickingDesk() override { setDesk(nullptr); }

  std::function<void()> pick;
  Form* shown = nullptr;
  std::int16_t mode = -1;

  void showModal(Form& form) override
  {
    shown = &form;
    mode = shared.RezimOtevreni;
    pick();
    form.hide();
  }
  Answer box(std::string_view, Buttons, Icon) override { return Answer::ok; }
  std::optional<std::string> prompt(std::string_view, std::string_view, std::string_view) override { return {}; }
  std::optional<Colour> chooseColour(Colour) override { return {}; }
  std::optional<Font> chooseFont(const Font&) override { return {}; }
  std::optional<std::string> chooseFile(std::string_view) override { return {}; }
  bool launch(std::string_view, std::string_view, std::string_view) override { return false; }
  bool browse(std::string_view) override { return false; }
  void breathe() override {}
};

class Picks : public testing::Test
{
protected:
  void SetUp() override { assembleProgram(); }

  void pickSound(const std::string& folder, const std::string& file, Command& command)
  {
    desk.pick = [=]
    {
      frmopen2.Slozka = folder;
      frmopen2.Soubor = file;
    };
    command.click();
    EXPECT_EQ(desk.shown, &frmopen2);
    EXPECT_EQ(desk.mode, 8);
  }

  PickingDesk desk;
};

} // namespace

TEST_F(Picks, ASoundGoesIntoTheBoxAndTheRecord)
{
  frmdalsinast.Command2.click();
  frmdalsinast.seznamrozzvuku.userSelect(0);
  pickSound("\\zvuky s mezerou", "vítr.ogg", frmdalsinast.cmdopen1);
  EXPECT_EQ(shared.Okoli.at(0).Den, "\\zvuky s mezerou\\vítr.ogg");
  EXPECT_EQ(shared.Okoli.at(0).Noc, "");
  pickSound("C:\\x", "noc.ogg", frmdalsinast.Command5);
  EXPECT_EQ(shared.Okoli.at(0).Noc, "C:\\x\\noc.ogg");
  frmdalsinast.cmdadd1.click();
  frmdalsinast.List1.userSelect(0);
  frmdalsinast.cmdadd2.click();
  frmdalsinast.List2.userSelect(0);
  pickSound("\\a", "b.ogg", frmdalsinast.cmdopen);
  EXPECT_EQ(shared.Sfx.at(0).Zvuky.at(0).Soubor, "\\a\\b.ogg");
  EXPECT_EQ(frmdalsinast.txtzvuk.text(), "\\a\\b.ogg");
}

TEST_F(Picks, WithoutBothFolderAndFileTheBoxStays)
{
  frmdalsinast.txtzvukroz.set("before");
  pickSound("", "b.ogg", frmdalsinast.cmdopen1);
  pickSound("\\a", "", frmdalsinast.cmdopen1);
  EXPECT_EQ(frmdalsinast.txtzvukroz.text(), "before");
}

TEST_F(Picks, APictureOfATitleLeavesThatOfTheOverviewAlone)
{
  shared.CestaObrazku = "\\overview.jpg";
  shared.RezimOtevreni = 2;
  desk.pick = [] { shared.CestaObrazku = "\\titul ě.paa"; };
  frmdalsinast.cmdopen3.click();
  EXPECT_EQ(desk.shown, &Frmopen);
  EXPECT_EQ(desk.mode, 9);
  EXPECT_EQ(frmdalsinast.txttext.text(), "\\titul ě.paa");
  EXPECT_EQ(frmdalsinast.picnahled.path(), ""); // that kind cannot be shown
  EXPECT_EQ(shared.CestaObrazku, "\\overview.jpg");
  EXPECT_EQ(shared.RezimOtevreni, 2);
}

TEST_F(Picks, ACancelledPictureChangesNothing)
{
  shared.CestaObrazku = "\\overview.jpg";
  frmdalsinast.txttext.set("before");
  desk.pick = [] { shared.CestaObrazku.clear(); };
  frmdalsinast.cmdopen3.click();
  EXPECT_EQ(frmdalsinast.txttext.text(), "before");
  desk.pick = [] {}; // closed without a choice
  frmdalsinast.cmdopen3.click();
  EXPECT_EQ(frmdalsinast.txttext.text(), "before");
  EXPECT_EQ(shared.CestaObrazku, "\\overview.jpg");
}
