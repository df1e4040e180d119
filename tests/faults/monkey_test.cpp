#include "app/commands.h"
#include "tests/faults/faultrun.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPixmapCache>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <malloc.h>

#ifdef __SANITIZE_ADDRESS__
extern "C" size_t __sanitizer_get_current_allocated_bytes(); // its header comes with clang only
#endif

namespace {

size_t bytesInUse()
{
#ifdef __SANITIZE_ADDRESS__
    return __sanitizer_get_current_allocated_bytes();
#else
    return mallinfo2().uordblks;
#endif
}

/// Somebody who does anything at all, by chance but the same for the same seed.
class Monkey final
{
public:
    Monkey(Form1 &form, ScriptedDesktop &desktop, QString folder, quint32 seed)
        : m_form(form), m_desktop(desktop), m_folder(std::move(folder)), m_random(seed)
    {}

    void act()
    {
        answerInAdvance();
        if (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
        if (m_form.isEnabled() && m_random.bounded(5) == 0)
            giveCommand();
        else
            useControl();
        QCoreApplication::processEvents(); // what was posted, and windows that are gone
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QString lastAct() const { return m_lastAct; }

private:
    void answerInAdvance()
    {
        m_desktop.answers = QList<Desktop::Answer>(4, m_random.bounded(2) == 0 ? Desktop::Yes : Desktop::No);
        m_desktop.savePaths.clear();
        if (m_random.bounded(3) != 0)
            m_desktop.savePaths << m_folder + QStringLiteral("/saved%1").arg(m_random.bounded(3));
    }

    // Not the end, and not what asks the network.
    void giveCommand()
    {
        const Command &command = Commands[size_t(m_random.bounded(int(Commands.size())))];
        if (command.kind == CommandKind::Quit || command.kind == CommandKind::CheckVersion)
            return;
        m_lastAct = QStringLiteral("command %1").arg(command.id);
        m_form.executeCommand(command.id);
    }

    void useControl()
    {
        QWidget *window = &m_form;
        for (QWidget *other : QApplication::topLevelWidgets()) {
            if (!m_form.isEnabled() && other->isVisible() && other->isEnabled() && other->isWindow() &&
                other != &m_form)
                window = other;
        }
        if (window != &m_form && m_random.bounded(20) == 0) {
            m_lastAct = QStringLiteral("close ") + window->objectName();
            window->close();
            return;
        }
        QWidgetList controls;
        for (QWidget *control : window->findChildren<QWidget *>()) {
            if (control->isVisible() && control->isEnabled() && control->window() == window &&
                !isFatal(*control))
                controls << control;
        }
        if (!controls.isEmpty())
            use(*controls[m_random.bounded(int(controls.size()))]);
    }

    // The list of reactions is empty in every run, and the views of a reaction without one are the run-time
    // error.
    static bool isFatal(const QWidget &control)
    {
        return control.objectName().startsWith(QStringLiteral("optorga("));
    }

    void use(QWidget &control)
    {
        m_lastAct = QStringLiteral("%1 \"%2\" of %3")
                        .arg(QLatin1StringView(control.metaObject()->className()), control.objectName(),
                             control.window()->objectName());
        if (auto *tabs = qobject_cast<QTabBar *>(&control)) {
            if (tabs->count() > 0)
                click(*tabs, tabs->tabRect(m_random.bounded(tabs->count())).center());
        } else if (auto *box = qobject_cast<QComboBox *>(&control)) {
            choose(*box);
        } else if (auto *view = qobject_cast<QAbstractItemView *>(&control)) {
            clickRow(*view);
        } else if (auto *field = qobject_cast<QLineEdit *>(&control)) {
            type(*field);
        } else if (auto *bar = qobject_cast<QScrollBar *>(&control)) {
            bar->setValue(m_random.bounded(bar->minimum(), bar->maximum() + 1));
        } else if (m_random.bounded(4) == 0) {
            press(control);
        } else {
            click(control, QPoint(m_random.bounded(std::max(control.width(), 1)),
                                  m_random.bounded(std::max(control.height(), 1))));
        }
    }

    void click(QWidget &control, const QPoint &place)
    {
        if (m_random.bounded(8) == 0)
            QTest::mouseDClick(&control, Qt::LeftButton, {}, place);
        else
            QTest::mouseClick(&control, Qt::LeftButton, {}, place);
    }

    void choose(QComboBox &box)
    {
        if (box.count() == 0)
            return;
        const int index = m_random.bounded(box.count());
        box.setCurrentIndex(index);
        Q_EMIT box.activated(index);
    }

    void clickRow(QAbstractItemView &view)
    {
        const int rows = view.model() ? view.model()->rowCount() : 0;
        if (rows == 0)
            return;
        const QModelIndex index = view.model()->index(m_random.bounded(rows), 0);
        view.scrollTo(index);
        click(*view.viewport(), view.visualRect(index).center());
    }

    void type(QLineEdit &field)
    {
        static const QStringList texts{QStringLiteral("0"),
                                       QStringLiteral("1"),
                                       QStringLiteral("-3.7"),
                                       QStringLiteral("1e300"),
                                       QStringLiteral("12345678901234567890"),
                                       QStringLiteral("water"),
                                       QStringLiteral("A"),
                                       QStringLiteral("*?["),
                                       QStringLiteral(",.-+e"),
                                       QStringLiteral("0.0000001")};
        if (m_random.bounded(2) == 0) {
            field.setFocus();
            field.selectAll();
            QTest::keyClick(&field, Qt::Key_Delete);
        }
        QTest::keyClicks(&field, texts[m_random.bounded(int(texts.size()))]);
        if (m_random.bounded(3) == 0)
            QTest::keyClick(&field, Qt::Key_Return);
    }

    void press(QWidget &control)
    {
        static constexpr std::array Keys{Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Up,     Qt::Key_Down,
                                         Qt::Key_Tab,   Qt::Key_Home,   Qt::Key_End,    Qt::Key_PageUp,
                                         Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape, Qt::Key_F,
                                         Qt::Key_7};
        QTest::keyClick(&control, Keys[size_t(m_random.bounded(int(Keys.size())))]);
    }

    Form1 &m_form;
    ScriptedDesktop &m_desktop;
    const QString m_folder;
    QRandomGenerator m_random;
    QString m_lastAct;
};

} // namespace

/// 10,000 commands, clicks, keys and texts by chance on the delivered data: nothing crashes, no run-time
/// error meets the user, and memory does not grow once everything has been seen.
class MonkeyTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anythingInAnyOrder();
};

void MonkeyTest::anythingInAnyOrder()
{
    constexpr int Acts = 10000;
    constexpr int FirstLook = 1000;
    QPixmapCache::setCacheLimit(1024); // kilobytes; a cache that fills is no leak
    const ProgramFolder folder;
    const QTemporaryDir saved;
    FaultRun run;
    QString failure;
    size_t bytesAtFirst = 0;
    size_t bytesAtEnd = 0;
    qsizetype widgetsAtFirst = 0;
    qsizetype widgetsAtEnd = 0;
    run.start(folder, [&](Form1 &form) {
        Monkey monkey(form, run.desktop, saved.path(), 20260101);
        for (int act = 1; act <= Acts && failure.isEmpty(); ++act) {
            run.desktop.boxes.clear();
            run.desktop.targets.clear();
            run.desktop.saveRequests.clear();
            try {
                monkey.act();
            } catch (const ProcessEnded &) {
                failure = QStringLiteral("act %1, %2: %3")
                              .arg(act)
                              .arg(monkey.lastAct(), run.desktop.boxes.constLast().first);
            }
            const qsizetype widgets = QApplication::allWidgets().size();
            if (act <= FirstLook) {
                bytesAtFirst = std::max(bytesAtFirst, bytesInUse());
                widgetsAtFirst = std::max(widgetsAtFirst, widgets);
            }
            if (act == Acts) {
                bytesAtEnd = bytesInUse();
                widgetsAtEnd = widgets;
            }
        }
    });
    QVERIFY2(failure.isEmpty(), qPrintable(failure));
    qInfo("in use: %zu kB at first, %zu kB at the end; widgets: %lld and %lld", bytesAtFirst / 1024,
          bytesAtEnd / 1024, qlonglong(widgetsAtFirst), qlonglong(widgetsAtEnd));
    QVERIFY(widgetsAtEnd <= widgetsAtFirst * 11 / 10);
    QVERIFY(bytesAtEnd <= bytesAtFirst + (8u << 20));
}

QTEST_MAIN(MonkeyTest)
#include "monkey_test.moc"
