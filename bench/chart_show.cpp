// How long a click on a row takes until its chart is on the screen, against a bare load of the same file:
//   chart_show <program folder>
// Clicks on each infrared chart, the tallest pictures there are, and on some of the NMR charts. What counts
// is the ratio, and that the slowest stays far below 50 ms.

#include "charts/ircharts.h"
#include "charts/nmrcharts.h"
#include "charts/spectroscopypane.h"
#include "core/module1.h"
#include "core/qtdesktop.h"
#include "store/databaseconnection.h"
#include "store/databasepassword.h"
#include "store/datastore.h"
#include "store/loadtable.h"
#include "store/recordset.h"
#include "store/tablecatalog.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPaintEvent>
#include <QTextStream>
#include <algorithm>
#include <functional>
#include <stdexcept>

namespace {

constexpr int Runs = 15;

/// Sees when the picture area has been painted.
class PaintWatch final : public QObject
{
public:
    bool painted = false;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        painted = painted || event->type() == QEvent::Paint;
        return false;
    }
};

/// Milliseconds, the median of the runs.
double median(const std::function<void()> &action)
{
    QList<double> times;
    action(); // warms the caches
    for (int run = 0; run < Runs; ++run) {
        QElapsedTimer timer;
        timer.start();
        action();
        times << double(timer.nsecsElapsed()) / 1e6;
    }
    std::sort(times.begin(), times.end());
    return times[Runs / 2];
}

void loadLists(const QString &folder, DataStore &store)
{
    DatabaseConnection connection;
    connection.Open(folder + QStringLiteral("/Data/Database_uk.mdb"), QStringLiteral("Admin"),
                    DatabasePassword);
    TableLoader loader(
        store, [&](const QString &statement) { return std::make_unique<Recordset>(statement, connection); },
        [] { throw std::runtime_error("a table is missing"); });
    for (const int step : {19, 20, 30}) {
        loader.LoadCounter = step;
        loader.LoadTable(TableCatalog::statement(step));
    }
    connection.Close();
}

class Bench
{
public:
    explicit Bench(const QString &folder)
    {
        m_module1.AppFolder = folder;
        loadLists(folder, m_store);
        m_pane.show();
        m_window.show();
        m_window.findChild<QWidget *>(QStringLiteral("Picture3"))->installEventFilter(&m_watch);
    }

    void run()
    {
        m_out << QStringLiteral("%1%2%3%4%5\n")
                     .arg(QStringLiteral("chart"), -18)
                     .arg(QStringLiteral("height"), 8)
                     .arg(QStringLiteral("bare ms"), 10)
                     .arg(QStringLiteral("click ms"), 10)
                     .arg(QStringLiteral("ratio"), 8);
        m_pane.selectMode(int(SpectroscopyMode::IrCharts));
        const RowList &infrared = m_store.lists.ListView3[5];
        QString last;
        for (int row = 0; row < infrared.rowCount(); ++row) {
            const QString group = infrared.subItem(row, 1);
            if (std::exchange(last, group) != group)
                measure(5, row, IrCharts::file(m_module1.AppFolder, group));
        }
        m_pane.selectMode(int(SpectroscopyMode::ProtonNmr));
        for (const int row : {0, 20})
            measure(15, row, ProtonCharts.file(m_module1.AppFolder, ProtonCharts.number(row + 1)));
    }

private:
    void measure(int list, int row, const QString &file)
    {
        auto *view = m_window.findChild<RowListView *>(QStringLiteral("ListView3(%1)").arg(list));
        view->selectRow(row);
        const double click = median([&] {
            m_watch.painted = false;
            Q_EMIT view->rowClicked(row);
            while (!m_watch.painted)
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        });
        int height = 0;
        const double bare = median([&] { height = QImage(file).height(); });
        if (height == 0)
            throw std::runtime_error("no picture: " + file.toStdString());
        m_out << QStringLiteral("%1%2%3%4%5\n")
                     .arg(file.section(QLatin1Char('/'), -2), -18)
                     .arg(height, 8)
                     .arg(bare, 10, 'f', 2)
                     .arg(click, 10, 'f', 2)
                     .arg(click / bare, 8, 'f', 2);
    }

    Module1 m_module1;
    DataStore m_store;
    QtDesktop m_desktop;
    QWidget m_window;
    SpectroscopyPane m_pane{m_module1, m_store, m_desktop, &m_window};
    PaintWatch m_watch;
    QTextStream m_out{stdout};
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream errors(stderr);
    if (arguments.size() != 2) {
        errors << "usage: chart_show <program folder>\n";
        return 2;
    }
    try {
        Bench(arguments[1]).run();
    } catch (const std::exception &error) {
        errors << error.what() << '\n';
        return 1;
    }
    return 0;
}
