#pragma once

#include "calc/calculationspane.h"
#include "core/module1.h"
#include "store/rowlists.h"
#include "tests/support/scripteddesktop.h"
#include "widgets/controls.h"
#include "widgets/tabstrip.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <map>

/// A window with the pane in it and units of the delivered names.
class CalcWindow final : public QWidget
{
public:
    CalcWindow()
    {
        module.OptionSlots.read(QStringLiteral(ALEMBRA_SOURCE "/data/program/options_uk.ini"));
        pane.show();
        show();
    }

    template<class W>
    W &get(const QString &name) const
    {
        auto *control = findChild<W *>(name);
        Q_ASSERT_X(control, "CalcWindow", qPrintable(name));
        return *control;
    }
    QLineEdit &field(const QString &name) const { return get<QLineEdit>(name); }
    QString text(const QString &name) const { return field(name).text(); }
    bool isShown(const QString &name) const { return Controls::isShown(get<QWidget>(name)); }

    /// The labels `lbl2` on show as they are read, line by line: index, caption and the field that stands
    /// under it.
    QString places() const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        std::map<std::pair<int, int>, QString> places; // by top and left
        for (int index = 0; index < 18; ++index) {
            const auto &label = get<QLabel>(QStringLiteral("lbl2(%1)").arg(index));
            if (!Controls::isShown(label))
                continue;
            const QWidget &field = *label.buddy();
            const bool isOver = label.x() == field.x() && label.geometry().bottom() < field.y();
            places[{label.y(), label.x()}] +=
                QStringLiteral("%1 %2 %3")
                    .arg(index)
                    .arg(label.text(), isOver ? field.objectName() : QStringLiteral("astray"));
        }
        QString text;
        for (auto place = places.begin(); place != places.end(); ++place) {
            const bool isNewLine =
                place != places.begin() && std::prev(place)->first.first != place->first.first;
            text += QLatin1String(text.isEmpty() ? "" : isNewLine ? " / " : ", ") + place->second;
        }
        return text;
    }

    void type(const QString &name, const QString &keys) const
    {
        field(name).setFocus();
        QTest::keyClicks(&field(name), keys);
    }
    void clickTab(const QString &strip, int tab) const
    {
        auto &tabs = get<TabStrip>(strip);
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab - 1).center());
    }
    void clickUnit(const QString &list, int row) const
    {
        auto &names = get<QListWidget>(list);
        names.scrollToItem(names.item(row));
        QTest::mouseClick(names.viewport(), Qt::LeftButton, {},
                          names.visualItemRect(names.item(row)).center());
    }
    void press(const QString &button) const { QTest::mouseClick(&get<QPushButton>(button), Qt::LeftButton); }

    /// What the pane said since the last time it was asked.
    QStringList messages()
    {
        QStringList texts;
        for (const auto &[text, style] : std::exchange(desktop.boxes, {})) {
            texts << text;
            if (style != Desktop::Warning)
                texts << QStringLiteral("style %1").arg(style);
        }
        return texts;
    }

    Module1 module;
    ScriptedDesktop desktop;
    RowLists lists;
    CalculationsPane pane{module, desktop, lists, this};
};
