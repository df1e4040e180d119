#include "core/desktop.h"

#include <cstdio>
#include <cstdlib>

void Desktop::endWithReport(const RuntimeError &error)
{
    // On standard error first: the box waits for somebody, and there may be nobody.
    const QString report = error.report();
    std::fputs(qUtf8Printable(report + QLatin1Char('\n')), stderr);
    std::fflush(stderr);
    messageBox(report, Critical);
    endProcess(1);
    std::abort(); // not reached; the compiler forgets across a virtual call that it never returns
}
