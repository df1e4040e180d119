#pragma once

#include <QString>

/// The network, as far as the check for a new version needs it. Tests answer in its place.
class UpdateNetwork
{
    Q_DISABLE_COPY_MOVE(UpdateNetwork)

public:
    UpdateNetwork() = default;
    virtual ~UpdateNetwork() = default;

    /// Whether this computer is on a network at all, beyond itself.
    virtual bool isConnected() const = 0;

    /// Fetches the newest copy of @p address into the file @p path and returns when that is over.
    ///
    /// There is a file at @p path afterwards only if all of it arrived, and never an older one that could be
    /// removed.
    virtual void download(const QString &address, const QString &path) = 0;
};
