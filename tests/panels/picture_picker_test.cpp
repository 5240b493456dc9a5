#include "app/assemble.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmopen.h"
#include "core/shared.h"
#include "panels/picture_picker.h"
#include "platform/paths.h"
#include "tests/test_home.h"

#include <gtest/gtest.h>

namespace tarvelin
{

namespace
{

/// The picker as the campaign's overview opens it.
class CampaignPicture : public testing::Test
{
protected:
  CampaignPicture()
  {
    assembleProgram();
    test::writeBytes(m_folder / "mapa žlutá.paa", "paa");
    shared.CestaMise = "\\mise\\";
    shared.CilObrazku = "\\mise\\pic.jpg";
    frmmain.lbljmeno.setCaption("mission.jpg");
    Frmopen.ProKampan = true;
    Frmopen.File1.setPath(folder());
    Frmopen.File1.userSelect("mapa žlutá.paa");
  }

  ~CampaignPicture() override { assembleProgram(); }

  std::string folder() const { return platform::toProgram(m_folder.path().string()); }

private:
  test::Scratch m_folder;
};

TEST_F(CampaignPicture, aClickIsTheCampaignsToo)
{
  EXPECT_EQ(shared.ObrazekKampane, folder() + "\\mapa žlutá.paa");
  EXPECT_EQ(shared.CestaObrazku, shared.ObrazekKampane);
}

TEST_F(CampaignPicture, OkLeavesTheMissionsPlaceAlone)
{
  Frmopen.cmdOk.click();
  EXPECT_EQ(shared.ObrazekKampane, folder() + "\\mapa žlutá.paa");
  EXPECT_EQ(shared.CilObrazku, "\\mise\\pic.jpg");
  EXPECT_EQ(frmmain.lbljmeno.caption(), "mission.jpg");
}

TEST_F(CampaignPicture, cancelEmptiesBoth)
{
  Frmopen.cmdstorno.click();
  EXPECT_EQ(shared.ObrazekKampane, "");
  EXPECT_EQ(shared.CestaObrazku, "");
}

TEST_F(CampaignPicture, theMissionsCommandPicksForTheMission)
{
  shared.ObrazekKampane.clear();
  frmmain.cmdopen.click();
  Frmopen.File1.setPath(folder()); // the first showing went elsewhere
  Frmopen.File1.userSelect("mapa žlutá.paa");
  EXPECT_EQ(shared.ObrazekKampane, "");
  Frmopen.cmdOk.click();
  EXPECT_EQ(shared.CilObrazku, "\\mise\\pic.paa");
}

} // namespace

} // namespace tarvelin
