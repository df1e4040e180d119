#include "update/versionnumber.h"

#include "core/runtimeerror.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

namespace {

std::int16_t joinedDigits(QString version)
{
    version.remove(QLatin1Char('.'));
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    if (version.isEmpty() || !std::all_of(version.cbegin(), version.cend(), isDigit))
        throw RuntimeError(ErrorNumber::TypeMismatch, version);
    int number = 0;
    for (const QChar digit : std::as_const(version)) {
        number = 10 * number + digit.digitValue();
        if (number > std::numeric_limits<std::int16_t>::max())
            throw RuntimeError(ErrorNumber::Overflow, version);
    }
    return std::int16_t(number);
}

} // namespace

bool VersionNumber::isNewer(const QString &remote, const QString &running)
{
    return joinedDigits(remote) > joinedDigits(running);
}
