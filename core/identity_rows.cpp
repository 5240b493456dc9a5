#include "core/identity_rows.h"

#include "core/forms/form2.h"
#include "core/shared.h"

#include <utility>

namespace tarvelin
{

namespace
{

IdentitySide sideOnShow = IdentitySide::mission;
std::vector<Row> waiting; ///< rows of the other side

std::vector<Row> rowsOnShow()
{
  std::vector<Row> rows;
  for (int i = 0; i < Form2.seznamidentit.count(); ++i)
    rows.push_back(Form2.seznamidentit.row(i));
  return rows;
}

} // namespace

void showIdentityRows()
{
  const IdentitySide side = shared.KampanMod ? IdentitySide::campaign : IdentitySide::mission;
  if (side == sideOnShow)
    return;
  sideOnShow = side;
  const std::vector<Row> rows = std::exchange(waiting, rowsOnShow());
  Form2.seznamidentit.clear();
  for (const Row& row : rows)
    Form2.seznamidentit.mark(Form2.seznamidentit.add(row.text, row.tag), row.marked);
  enableIdentityFields(!rows.empty());
  Form2.cmdelall.enable(!rows.empty());
}

std::vector<Row> identityRows(IdentitySide side)
{
  return side == sideOnShow ? rowsOnShow() : waiting;
}

void clearIdentityRows(IdentitySide side)
{
  if (side != sideOnShow)
  {
    waiting.clear();
    return;
  }
  Form2.seznamidentit.clear();
  enableIdentityFields(false);
}

void enableIdentityFields(bool on)
{
  for (Field* const field : std::initializer_list<Field*>{&Form2.Text1, &Form2.Text2, &Form2.hlasy, &Form2.ksichty,
                                                          &Form2.bryle, &Form2.List1})
    field->enable(on);
}

} // namespace tarvelin
