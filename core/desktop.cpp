#include "core/desktop.h"

#include <cstdio>
#include <cstdlib>

void Desktop::endWithMessage(const QString &text)
{
    // Standard error first: the box waits for a user, and there may be none.
    std::fputs(qUtf8Printable(text + QLatin1Char('\n')), stderr);
    std::fflush(stderr);
    messageBox(text, Critical);
    endProcess(1);
    std::abort(); // not reached; the compiler forgets across a virtual call that it never returns
}
