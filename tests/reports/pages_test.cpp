#include "core/module1.h"
#include "reports/reportpage.h"
#include "reports/reports.h"
#include "store/datastore.h"
#include "tests/support/testclass.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

namespace {

struct Report
{
    const char *name;
    void (*write)(ReportPage &, const DataStore &);
    QList<Slot> options = {}; ///< those that the report asks, up to two
};

const Report All[] = {
    {"properties", Reports::Properties, {Slot::ReportStructures}},
    {"miscibility", Reports::Miscibility, {Slot::ReportPolarityChart}},
    {"nmr", Reports::Nmr},
    {"masses", Reports::MassSpectrometry},
    {"drying", Reports::Drying},
    {"cooling", Reports::CoolingMixtures},
    {"ir", Reports::IrTable},
    {"elements", Reports::Elements, {Slot::ReportElementPictures, Slot::ReportIsotopes}},
    {"solutions", Reports::Solutions, {Slot::ReportFluorochromes}},
    {"biochemistry", Reports::Biochemistry, {Slot::ReportSdsPage, Slot::ReportGeneticCode}},
    {"constants", Reports::ConstantsAndUnits},
};

const QString LeftOut = "left out";

} // namespace

/// Each report as a whole file, compared with a page that was read by a person. Where they differ, the new
/// page is written to the folder that the test runs in: read it, and put it into tests/reports/pages if it is
/// right.
class PagesTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPageIsAsReviewed()
    {
        fillLists();
        fillElements();
        m_module.AppFolder = "/opt/my lab/Alembra uk";
        for (const Report &report : All) {
            compare(report, "colors", ReportTheme::Colors, report.options);
            compare(report, "grayscale", ReportTheme::Grayscale, report.options.mid(0, 1));
            if (!report.options.isEmpty())
                compare(report, "second", ReportTheme::Grayscale, report.options.mid(1));
        }
        QVERIFY(m_pictures > 10);
    }

private:
    static void add(RowList &list, const QString &cells)
    {
        const QStringList texts = cells.split('|');
        list.append(texts.constFirst());
        for (const QString &text : texts.mid(1))
            list.appendSubItem(text);
    }

    // The first row has more cells than any table has columns.
    static void addRows(RowList &list, const QString &name)
    {
        add(list, name + " full|1|2|3|4|5|6|7|8|9|10|11");
        add(list, name + " bare");
    }

    // With the kinds of row that some table leaves out or indents.
    static void addAllKinds(RowList &list, const QString &name)
    {
        addRows(list, name);
        add(list, name + " second||2");
        add(list, name + " first|1");
        add(list, "|1|2|3");
    }

    void fillLists()
    {
        RowLists &lists = m_data.lists;
        for (int list = 0; list < 18; ++list)
            addRows(lists.ListView3[list], QString("3.%1").arg(list));
        for (int list = 18; list < 28; ++list)
            addAllKinds(lists.ListView3[list], QString("3.%1").arg(list));
        for (int list = 0; list < 5; ++list)
            add(lists.ListView2[list], QString("2.%1|1|2|3|4").arg(list));
        for (int list = 0; list < 7; ++list)
            add(lists.ListView7[list], QString("7.%1|1|2|3|4|5").arg(list));
        add(lists.ListView1, "Acetic acid|<60 & more>|1.0446|16.6|117.9|1.3720|64-19-7|not written");
        add(lists.ListView1, "Petroleum ether (40-60 °C)|82||||a|b");
        addAllKinds(lists.ListView4, "4");
        addAllKinds(lists.ListView5, "5");
        addAllKinds(lists.ListView6, "6");
        addAllKinds(lists.ListView8, "8");
        add(lists.ListView8, "–\u00b5→λ|a character outside of the code page");
        addAllKinds(lists.ListView9, "9");
    }

    // Element 117 ends the report, 106 and later ones share a picture. The others that have a name are left
    // out.
    void fillElements()
    {
        auto &table = m_data.tables.ElementData;
        for (int element = 1; element <= 118; ++element) {
            table(element - 1, 0) = LeftOut;
            table(element - 1, 2) = QString::number(element);
        }
        for (const int element : {1, 2, 105, 106, 107, 117})
            table(element - 1, 0).clear();
        for (const int column : {0, 1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14})
            table(0, column) = QString("c%1").arg(column);
        const QStringList isotopes{"2", "stable", "-", "3", "12.3 y", "b-", "4", "", "n"};
        for (int i = 0; i < isotopes.size(); ++i)
            table(0, 15 + i) = isotopes[i];
        table(116, 15) = "294";
        table(117, 0) = "not written";
        table(117, 15) = "not written";
    }

    void compare(const Report &report, const char *variant, ReportTheme theme, const QList<Slot> &options)
    {
        m_module.OptionSlots(Slot::ReportColours) = theme == ReportTheme::Colors ? 1 : 0;
        for (const Slot slot : report.options)
            m_module.OptionSlots(slot) = options.contains(slot) ? 1 : 0;
        ReportPage page(m_module); // the classes of rows go on from page to page
        report.write(page, m_data);
        static const QRegularExpression unnamed("</tr>\r\n<tr class=\\w+>\r\n<td>left out</td>.*?</tr>\r\n",
                                                QRegularExpression::DotMatchesEverythingOption);
        const QByteArray actual = QString::fromLatin1(page.bytes())
                                      .remove(unnamed)
                                      .replace(Module1::version(), "@version")
                                      .toLatin1();
        static const QRegularExpression picture("file:////opt/my%20lab/Alembra%20uk([^ >]+)");
        for (auto found = picture.globalMatch(QString::fromLatin1(actual)); found.hasNext();) {
            const QByteArray below = found.next().captured(1).replace('\\', '/').toLatin1();
            const QString file = ALEMBRA_FOLDER + QUrl::fromPercentEncoding(below);
            QVERIFY2(QFile::exists(file), qPrintable(file));
            ++m_pictures;
        }
        const QString name = QString("%1-%2.htm").arg(report.name, variant);
        QFile reviewed(QString(ALEMBRA_SOURCE "/tests/reports/pages/") + name);
        if (reviewed.open(QIODevice::ReadOnly) && reviewed.readAll() == actual)
            return;
        QFile written(name);
        QVERIFY(written.open(QIODevice::WriteOnly) && written.write(actual) == actual.size());
        QTest::qFail(qPrintable(name + " differs, see " + QFileInfo(written).absoluteFilePath()), __FILE__,
                     __LINE__);
    }

    int m_pictures = 0;
    Module1 m_module;
    DataStore m_data;
};

const TestClass<PagesTest> pagesTest;
#include "pages_test.moc"
