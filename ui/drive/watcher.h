#pragma once

#include <QGenericPlugin>

namespace tarvelin::drive
{

/// Loaded into the program by QT_QPA_GENERIC_PLUGINS=watcher:SOCKET. It tells whoever asks at the local socket SOCKET
/// what is on the screen and where, as JSON, one object to the line. It only looks: all that is done to the program is
/// done with keys and mouse.
///
///     {"ask": "windows"}                     every window on the screen
///     {"ask": "window", "name": "frmmain"}   the window and all its widgets
class Watcher : public QGenericPlugin
{
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "watcher.json")

public:
  QObject* create(const QString& key, const QString& socket) override;
};

} // namespace tarvelin::drive
