#pragma once

#include "update/updatenetwork.h"

#include <chrono>

/// The network by Qt. While a download runs, the user's input waits and the pointer is the one for waiting.
class QtUpdateNetwork final : public UpdateNetwork
{
public:
    struct Limits
    {
        std::chrono::milliseconds time{20000}; ///< for the whole download, however it trickles
        qint64 bytes = 65'536;                 ///< a version file has a few hundred
    };

    QtUpdateNetwork() : QtUpdateNetwork(Limits()) {}
    explicit QtUpdateNetwork(const Limits &limits) : m_limits(limits) {}

    bool isConnected() const override;

    /// Only http and https; redirections are followed as long as they do not lead from https to http.
    void download(const QString &address, const QString &path) override;

private:
    const Limits m_limits;
};
