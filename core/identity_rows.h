#pragma once

#include "core/forms/rows.h"

#include <vector>

// The identities of the mission and those of the campaign share one form. Its list shows the rows of one side; the rows
// of the other one wait until the form changes sides.
namespace tarvelin
{

enum class IdentitySide
{
  mission,
  campaign,
};

/// Shows the rows of the side that KampanMod names. Rows that come back have their marks, none is highlighted.
void showIdentityRows();

/// The rows of a side, on show or not.
std::vector<Row> identityRows(IdentitySide side);

/// Drops the rows of a side, on show or not; without rows on show nothing can be edited.
void clearIdentityRows(IdentitySide side);

/// The fields of Form2 that can be edited only while there is an identity.
void enableIdentityFields(bool on);

} // namespace tarvelin
