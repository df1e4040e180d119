#pragma once

#include <QString>

/// The network for the check for a new version. Tests replace it.
class UpdateNetwork
{
    Q_DISABLE_COPY_MOVE(UpdateNetwork)

public:
    UpdateNetwork() = default;
    virtual ~UpdateNetwork() = default;

    /// Whether this computer is on any network besides itself.
    virtual bool isConnected() const = 0;

    /// Downloads @p address, uncached, to the file @p path and returns when done. Afterwards there is a file
    /// at @p path only if the download was complete, or if an older file could not be removed.
    virtual void download(const QString &address, const QString &path) = 0;
};
