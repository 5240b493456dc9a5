#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace tarvelin::drive
{

/// Every window on the screen: `name`, `class`, `title`, `rect` (left, top, width, height on the screen), `id`
/// (the screen's), `active`, `modal`, and `painted`, the milliseconds of the steady clock at which it was first seen.
QJsonArray lookAtWindows();

/// The window of that object name or that class, with all its `widgets` that are on the screen; a thing of a widget
/// that does not apply is left out. Empty when there is no such window.
QJsonObject lookAtWindow(const QString& name);

} // namespace tarvelin::drive
