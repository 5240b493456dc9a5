#pragma once

#include "core/forms/form.h"

#include <string_view>
#include <vector>

namespace tarvelin
{

/// All forms of the program, the main window first.
const std::vector<Form*>& allForms();

/// The form of that name ignoring case; null when there is none.
Form* findForm(std::string_view name);

/// Makes every form anew in its place: fields, values and captions stand at their defaults, handlers and views are
/// gone.
void renewForms();

} // namespace tarvelin
