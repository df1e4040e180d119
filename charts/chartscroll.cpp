#include "charts/chartscroll.h"

#include "core/numbers.h"
#include "core/runtimeerror.h"

#include <limits>

std::optional<int> ChartScroll::maximum(double height)
{
    if (height < TallPicture)
        return std::nullopt;
    const int value = Numbers::roundHalfToEven((height * 1.01 - 10700) / 2);
    if (value > std::numeric_limits<short>::max())
        throw RuntimeError(ErrorNumber::Overflow);
    return value;
}
