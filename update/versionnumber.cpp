#include "update/versionnumber.h"

#include "core/runtimeerror.h"

#include <algorithm>

namespace {

short joinedDigits(QString version)
{
    version.remove(u'.');
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    if (version.isEmpty() || !std::all_of(version.cbegin(), version.cend(), isDigit))
        throw RuntimeError(ErrorNumber::TypeMismatch, version);
    bool fits = false;
    const short number = version.toShort(&fits);
    if (!fits)
        throw RuntimeError(ErrorNumber::Overflow, version);
    return number;
}

} // namespace

bool VersionNumber::isNewer(const QString &remote, const QString &running)
{
    return joinedDigits(remote) > joinedDigits(running);
}
