#pragma once

#include "ui/link.h"

#include <QString>
#include <memory>
#include <string>
#include <vector>

class QWidget;

namespace tarvelin
{
struct Form;
}

namespace tarvelin::ui
{

/// Name of a field's widget: "Label1_25" for "Label1(25)".
QString widgetName(const Field& field);

/// Connects a field with its widget in `window`, both ways. Null when the kind has no widget, or the window has none of
/// that name that can show the kind.
std::unique_ptr<Link> bindField(Field& field, QWidget& window);

/// Connects all fields of a form. The names of fields that found no widget of their kind go to `unbound`.
std::vector<std::unique_ptr<Link>> bindForm(Form& form, QWidget& window, std::vector<std::string>* unbound = nullptr);

} // namespace tarvelin::ui
