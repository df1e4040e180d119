#include "core/runtimeerror.h"
#include "tests/fuzz/inputfile.h"
#include "update/profilefile.h"
#include "update/versionnumber.h"

// The version file comes from the network: whatever it is, its values are short lines, and comparing them
// ends in an answer or in one of two errors.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const InputFile file(data, size);
    const QString version =
        ProfileFile::value(file.path(), QStringLiteral("ALEMBRA"), QStringLiteral("Version"));
    const QString url = ProfileFile::value(file.path(), QStringLiteral("ALEMBRA"), QStringLiteral("URL"));
    for (const QString &value : {version, url}) {
        require(value.size() <= ProfileFile::LongestValue);
        require(!value.contains(QLatin1Char('\n')) && !value.contains(QLatin1Char('\r')));
    }
    try {
        VersionNumber::isNewer(version, QStringLiteral("1.1.0"));
    } catch (const RuntimeError &error) {
        require(error.number() == ErrorNumber::TypeMismatch || error.number() == ErrorNumber::Overflow);
    }
    return 0;
}
