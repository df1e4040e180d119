#pragma once

#include "core/module1.h"
#include "expectedpage.h"
#include "reports/reportpage.h"
#include "reports/reports.h"
#include "store/datastore.h"

#include <QObject>
#include <memory>

/// A report as a whole file, from lists of a few rows.
class WrittenReport : public QObject
{
protected:
    using Report = void (*)(ReportPage &, const DataStore &);

    void renew()
    {
        m_module = std::make_unique<Module1>();
        m_module->AppFolder = "/opt/my lab/Alembra uk";
        m_data = std::make_unique<DataStore>();
    }
    QByteArray written(Report report)
    {
        ReportPage page(*m_module);
        report(page, *m_data);
        return page.bytes();
    }
    static void add(RowList &list, const QString &cells)
    {
        const QStringList texts = cells.split('|');
        list.append(texts.constFirst());
        for (const QString &text : texts.mid(1))
            list.appendSubItem(text);
    }
    void turnOn(Slot slot) { m_module->OptionSlots(slot) = 1; }

    std::unique_ptr<Module1> m_module;
    std::unique_ptr<DataStore> m_data;
};

// Pages are long: the first difference says more than both in full.
#define COMPARE_PAGES(actual, expected)                                                                      \
    do {                                                                                                     \
        const QList<QByteArray> a = QByteArray(actual).split('\n');                                          \
        const QList<QByteArray> e = file(expected).split('\n');                                              \
        for (qsizetype i = 0; i < qMin(a.size(), e.size()); ++i)                                             \
            QVERIFY2(a[i] == e[i],                                                                           \
                     qPrintable(QString("line %1:\n%2\n%3").arg(QString::number(i + 1), a[i], e[i])));       \
        QCOMPARE(a.size(), e.size());                                                                        \
    } while (false)
