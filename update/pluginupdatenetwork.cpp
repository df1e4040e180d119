#include "update/pluginupdatenetwork.h"

#include "core/runtimeerror.h"

#include <QPluginLoader>

bool PluginUpdateNetwork::isConnected() const
{
    return network().isConnected();
}

void PluginUpdateNetwork::download(const QString &address, const QString &path)
{
    network().download(address, path);
}

// Qt keeps what is loaded, and its one instance, until the process ends.
UpdateNetwork &PluginUpdateNetwork::network() const
{
    auto *network = qobject_cast<UpdateNetwork *>(QPluginLoader(m_plugin).instance());
    if (!network)
        throw RuntimeError(ErrorNumber::FileNotFound, m_plugin);
    return *network;
}
