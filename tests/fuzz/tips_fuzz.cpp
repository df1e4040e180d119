#include "sidewindows/tips.h"
#include "tests/fuzz/inputfile.h"

// Every line is a tip, no line end is left in one, and drawing the next one comes to an end.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::optional<QStringList> tips = Tips::read(InputFile(data, size).path());
    require(tips.has_value());
    for (const QString &tip : *tips)
        require(!tip.contains(QLatin1Char('\n')) && !tip.contains(QLatin1Char('\r')));
    const int count = int(tips->size());
    double fraction = 0;
    const auto draw = [&fraction] { return fraction = fraction < 0.9 ? fraction + 0.01 : 0; };
    const int number = Tips::next(1, count, draw);
    require(number >= 1 && number <= std::max(count, 1));
    return 0;
}
