// The time from a click on a row until its chart is painted, against decoding its picture: all infrared
// charts, which are the tallest pictures, and some NMR charts.

#include "bench/frames.h"
#include "bench/programdata.h"
#include "charts/ircharts.h"
#include "charts/nmrcharts.h"
#include "widgets/rowlistview.h"

#include <QImage>

using namespace Qt::StringLiterals;

namespace {

constexpr double ClickTarget = 1.3;

constexpr int IrGroups = 30; // load step
constexpr int ShowProtonNmr = 1142;
constexpr int ShowIrCharts = 1144;

class Clicks
{
public:
    Clicks(Form1 &form, Measure &measure)
        : m_form(form), m_measure(measure), m_picture(Frames::control<QWidget>(form, "Picture3"))
    {}

    void infrared()
    {
        m_form.executeCommand(ShowIrCharts);
        auto &list = Frames::control<RowListView>(m_form, "ListView3(5)");
        const auto data = ProgramData::load(ProgramData::database(), IrGroups, IrGroups);
        const RowList &rows = data->lists.ListView3[5];
        QString last; // the rows of a chart are consecutive
        for (int row = 0; row < rows.rowCount(); ++row) {
            const QString group = rows.subItem(row, 1);
            if (std::exchange(last, group) != group)
                clickOn(list, row, IrCharts::file(group));
        }
    }

    void protons()
    {
        m_form.executeCommand(ShowProtonNmr);
        auto &list = Frames::control<RowListView>(m_form, "ListView3(15)");
        for (const int row : {0, 20})
            clickOn(list, row, ProtonCharts.file(ProtonCharts.number(row + 1)));
    }

private:
    void clickOn(RowListView &list, int row, const QString &chart)
    {
        const QString file = QStringLiteral(ALEMBRA_FOLDER "/") + chart;
        if (QImage(file).isNull())
            throw std::runtime_error("no picture: " + file.toStdString());
        list.selectRow(row);
        m_measure.compare(
            u"click for chart %1 / decoding"_s.arg(file.section(u'/', -2)),
            [&] { static_cast<void>(QImage(file)); },
            [&] { Frames::untilPainted(m_picture, [&] { Q_EMIT list.rowClicked(row); }); }, ClickTarget);
    }

    Form1 &m_form;
    Measure &m_measure;
    QWidget &m_picture;
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return ProgramRun::measured([](Form1 &form, Measure &measure) {
        form.executeCommand(ShowIrCharts); // builds the pane
        Clicks clicks(form, measure);
        clicks.infrared();
        clicks.protons();
    });
}
