#pragma once

#include "update/updatenetwork.h"

#include <utility>

/// The network by a plug-in of ours, loaded when it is first needed: a start must not pay for the libraries
/// that one click in a month needs.
///
/// Without the plug-in, or without the libraries that it needs, each call throws RuntimeError 53 with its
/// path, and the next one tries again.
class PluginUpdateNetwork final : public UpdateNetwork
{
public:
    /// @p plugin is the path of its file.
    explicit PluginUpdateNetwork(QString plugin) : m_plugin(std::move(plugin)) {}

    bool isConnected() const override;
    void download(const QString &address, const QString &path) override;

private:
    UpdateNetwork &network() const;

    const QString m_plugin;
};
