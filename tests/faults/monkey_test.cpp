#include "app/commands.h"
#include "tests/support/wholerun.h"

#include <QPixmapCache>
#include <QRandomGenerator>
#include <malloc.h>

#ifdef __SANITIZE_ADDRESS__
extern "C" size_t __sanitizer_get_current_allocated_bytes(); // its header comes with clang only
#endif

/// Somebody who does anything at all, by chance but the same in every run: commands, clicks, keys and texts
/// on the delivered data. Nothing crashes, no run-time error meets the user, and memory does not grow once
/// everything has been seen.
class MonkeyTest final : public WholeRun
{
    Q_OBJECT

private Q_SLOTS:
    void anythingInAnyOrder()
    {
        constexpr int FirstLook = 1000;
        QPixmapCache::setCacheLimit(1024); // kilobytes; a cache that fills is no leak
        const ProgramFolder folder;
        QString lastAct;
        InUse first;
        InUse last;
        const QString end = outcome(folder, [&](Form1 &form) {
            for (int number = 1; number <= 5 * FirstLook; ++number) {
                m_desktop.boxes.clear();
                m_desktop.targets.clear();
                m_desktop.saveRequests.clear();
                lastAct = QString("act %1, ").arg(number);
                act(form, folder, lastAct);
                last = {bytesInUse(), QApplication::allWidgets().size()};
                if (number <= FirstLook)
                    first = {std::max(first.bytes, last.bytes), std::max(first.widgets, last.widgets)};
            }
            m_desktop.boxes.clear();
        });
        QVERIFY2(end == "runs", qPrintable(lastAct + end));
        QVERIFY2(last.widgets <= first.widgets * 11 / 10, qPrintable(QString::number(last.widgets)));
        QVERIFY2(last.bytes <= first.bytes + (8u << 20), qPrintable(QString::number(last.bytes)));
    }

private:
    struct InUse
    {
        size_t bytes = 0;
        qsizetype widgets = 0;
    };

    static size_t bytesInUse()
    {
#ifdef __SANITIZE_ADDRESS__
        return __sanitizer_get_current_allocated_bytes();
#else
        return mallinfo2().uordblks;
#endif
    }

    int below(qsizetype bound)
    {
        return m_random.bounded(std::max(int(bound), 1));
    }

    void act(Form1 &form, const ProgramFolder &folder, QString &what)
    {
        m_desktop.answers = QList<Desktop::Answer>(4, below(2) == 0 ? Desktop::Yes : Desktop::No);
        m_desktop.savePaths.clear();
        if (below(3) != 0)
            m_desktop.savePaths << folder.path(QString("saved%1").arg(below(3)));
        if (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
        const Command &command = Commands[size_t(below(qsizetype(Commands.size())))];
        if (form.isEnabled() && below(5) == 0) {
            what += QString("command %1: ").arg(command.id);
            // Not the end, and not what asks the network.
            if (command.kind != CommandKind::Quit && command.kind != CommandKind::CheckVersion)
                form.executeCommand(command.id);
        } else {
            useControl(form, what);
        }
        QCoreApplication::processEvents(); // what was posted, and windows that are gone
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void useControl(Form1 &form, QString &what)
    {
        QWidget *window = &form;
        for (QWidget *other : QApplication::topLevelWidgets()) {
            if (!form.isEnabled() && other->isVisible() && other->isEnabled() && other != &form)
                window = other;
        }
        QWidgetList controls;
        for (QWidget *control : window->findChildren<QWidget *>()) {
            // The views of a reaction where none is chosen are the run-time error.
            if (control->isVisible() && control->isEnabled() && control->window() == window &&
                !control->objectName().startsWith("optorga("))
                controls << control;
        }
        what += QString("in ") + window->objectName();
        if (controls.isEmpty() || (window != &form && below(20) == 0)) {
            window->close();
            return;
        }
        QWidget &control = *controls[below(controls.size())];
        what += QString(": %1 \"%2\": ")
                    .arg(QLatin1StringView(control.metaObject()->className()), control.objectName());
        use(control);
    }

    void use(QWidget &control)
    {
        static const QStringList texts{"0", "-3.7", "1e300", "12345678901234567890", "water", "*?[", ",.-+e"};
        static const QList keys{Qt::Key_Left, Qt::Key_Down, Qt::Key_Tab,    Qt::Key_End,   Qt::Key_PageUp,
                                Qt::Key_F,    Qt::Key_7,    Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape};
        const QPoint place(below(control.width()), below(control.height()));
        const int way = below(16);
        if (way == 3 || way == 4)
            QTest::keyClick(&control, Qt::Key_A, Qt::ControlModifier); // and a text over it
        if (way < 3)
            QTest::keyClick(&control, keys[below(keys.size())]);
        else if (way < 7)
            QTest::keyClicks(&control, texts[below(texts.size())]);
        else if (way == 7)
            QTest::mouseDClick(&control, Qt::LeftButton, {}, place);
        else
            QTest::mouseClick(&control, Qt::LeftButton, {}, place);
    }

    QRandomGenerator m_random{20260101};
};

const TestClass<MonkeyTest> monkeyTest;
#include "monkey_test.moc"
