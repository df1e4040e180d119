#include "update/qtupdatenetwork.h"

#include <QObject>

/// QtUpdateNetwork as the plug-in that the program loads for its first check.
class NetworkPlugin final : public QObject, public QtUpdateNetwork
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID UpdateNetworkInterface)
    Q_INTERFACES(UpdateNetwork)
};

#include "networkplugin.moc"
