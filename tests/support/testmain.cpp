#include "tests/support/testclass.h"

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
            failed += test(arguments);
        }
    }
    return run > 0 && failed == 0 ? 0 : 1;
}
