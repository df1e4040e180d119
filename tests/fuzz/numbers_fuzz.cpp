#include "core/numbers.h"
#include "tests/fuzz/inputfile.h"

#include <cmath>

// What reads as a number is finite, is written in plain characters, and reads as the same number again, once
// the digits beyond the fifteenth are gone.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    Numbers::parseLocal(text);
    const std::optional<double> number = Numbers::parseInvariant(text);
    if (!number)
        return 0;
    require(std::isfinite(*number));
    const QString written = Numbers::formatInvariant(*number);
    require(written.size() <= 22);
    const std::optional<double> again = Numbers::parseInvariant(written);
    if (!again) // the last digits of the largest numbers round upwards out of the range
        require(std::fabs(*number) > 1.797e308);
    else
        require(Numbers::formatInvariant(*again) == written);
    return 0;
}
