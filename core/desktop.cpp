#include "core/desktop.h"

#include <cstdio>
#include <cstdlib>

void Desktop::endWithMessage(const QString &text)
{
    // Standard error first: the box waits for a user, and there may be none.
    std::fputs(qUtf8Printable(text + u'\n'), stderr);
    std::fflush(stderr);
    messageBox(text, Critical);
    endProcess(1);
    std::abort(); // not reached, but gcc forgets [[noreturn]] on a virtual call
}
