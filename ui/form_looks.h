#pragma once

#include <memory>
#include <string_view>

class QWidget;

namespace tarvelin::ui
{

/// A new window with the look of a form, as ui/forms/FORM.ui draws it; null when there is none.
std::unique_ptr<QWidget> makeLook(std::string_view form);

} // namespace tarvelin::ui
