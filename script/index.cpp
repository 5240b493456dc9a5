#include "script/index.h"

#include "core/forms/frmrejstrik.h"
#include "script/word_classes.h"
#include "script/word_search.h"

namespace tarvelin
{

namespace
{

void nazev_Change()
{
  if (frmrejstrik.nazev.empty())
    return;
  List& words = frmrejstrik.seznam;
  if (const int found = BNajdi(0, words.count() - 1, frmrejstrik.nazev.text(), words); found >= 0)
    words.select(found);
}

void seznam_Click()
{
  if (frmrejstrik.seznam.index() < 0)
    return;
  const WordClass* const found = wordClass(frmrejstrik.seznam.tag(frmrejstrik.seznam.index()));
  frmrejstrik.lbltyp.setCaption(found ? found->title : "");
}

} // namespace

void attachIndex()
{
  frmrejstrik.nazev.onChange = nazev_Change;
  frmrejstrik.seznam.onClick = seznam_Click;
  frmrejstrik.Command1.onClick = [] { frmrejstrik.hide(); };
}

} // namespace tarvelin
