#include "tests/support/testclass.h"

#include <csignal>

#ifdef QT_WIDGETS_LIB
#include <QApplication>
using Application = QApplication;
#else
using Application = QCoreApplication;
#endif

/// <program> [<class> [<arguments of Qt Test>]]: runs all test classes, or one. Status 0 if nothing failed.
int main(int count, char **values)
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const Application application(count, values);
    QStringList arguments = QCoreApplication::arguments();
    const QByteArray chosen = arguments.size() > 1 ? arguments.takeAt(1).toUtf8() : QByteArray();
    int run = 0;
    int failed = 0;
    for (const auto &[name, test] : std::as_const(TestClasses::all)) {
        if (chosen.isEmpty() || chosen == name) {
            ++run;
            // Those that one class leaves would call themselves without end where the next one crashes.
            for (const int fatal : {SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGSEGV, SIGTERM})
                std::signal(fatal, SIG_DFL);
            failed += test(arguments);
        }
    }
    return run > 0 && failed == 0 ? 0 : 1;
}
