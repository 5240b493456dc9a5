#pragma once

#include "ui/link.h"

#include <memory>
#include <vector>

class QWidget;

namespace tarvelin
{
struct Form;
}

namespace tarvelin::ui
{

/// What a chooser of files has beside its fields: buttons for the home folder and the game's, and a line that shows the
/// folder and takes a typed path. Empty for a window that has none of it.
std::vector<std::unique_ptr<Link>> bindPlaces(const Form& form, const QWidget& window);

} // namespace tarvelin::ui
