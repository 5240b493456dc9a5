#pragma once

#include <string>
#include <string_view>

namespace tarvelin
{

struct Form;

/// What the author of the sample mission and campaign picks when a picker is on show. False for other forms.
/// `folder` is the native folder in which missions/, Campaigns/ and sounds/ lie.
bool pickSample(Form& form, const std::string& folder);

/// Fills the windows with a small mission and campaign, in Czech or else in English. A mission is open; its files and
/// the campaign's are written.
void fillWithSample(std::string_view language);

} // namespace tarvelin
