#pragma once

#include "update/updatenetwork.h"

#include <chrono>

/// The network by Qt. A download ignores user input and shows the waiting pointer.
class QtUpdateNetwork final : public UpdateNetwork
{
public:
    struct Limits
    {
        std::chrono::milliseconds time{20000}; ///< for the whole download
        qint64 bytes = 65'536;                 ///< a version file has a few hundred
    };

    QtUpdateNetwork() : QtUpdateNetwork(Limits()) {}
    explicit QtUpdateNetwork(const Limits &limits) : m_limits(limits) {}

    bool isConnected() const override;

    /// Only http and https. Follows redirections, but not from https to http.
    void download(const QString &address, const QString &path) override;

private:
    const Limits m_limits;
};
