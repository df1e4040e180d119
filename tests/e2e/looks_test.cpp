#include "app/frmload.h"
#include "sidewindows/helpbook.h"
#include "sidewindows/tips.h"
#include "tests/e2e/judge.h"
#include "tests/e2e/paintedtexts.h"
#include "tests/e2e/walk.h"
#include "tests/support/files.h"
#include "tests/support/wholerun.h"
#include "widgets/modulepanel.h"
#include "widgets/rowlistview.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QStatusBar>
#include <QTest>
#include <QXmlStreamReader>

/// Nothing is clipped, covered or hard to read, in every pane and window as it stands in the running program.
///
/// Fonts and palettes are rows here; the factor of the display comes with QT_SCALE_FACTOR.
class LooksTest final : public WholeRun
{
    Q_OBJECT

private Q_SLOTS:
    void everyPane_data() { addLooks(); }
    void everyPane();
    void everyElement_data() { addLooks(); }
    void everyElement();
    void everySideWindow_data() { addLooks(); }
    void everySideWindow();
    void tipAndSplash_data() { addLooks(); }
    void tipAndSplash();
    void everyStyleOfTheToolBar_data() { addLooks(); }
    void everyStyleOfTheToolBar();
    void focusIsSeen_data() { addLooks(); }
    void focusIsSeen();
    void smallDisplay();
    void theHelpNamesWhatIsThere();
    void cleanup();

private:
    static void addLooks();
    void setLooks();
    void verifyNothingFound();

    void walk(const ProgramFolder &folder, const std::function<void(Form1 &)> &looks)
    {
        run(folder, [&](Form1 &form) {
            QVERIFY(form.screen()->availableGeometry().contains(QRect({}, form.size())));
            form.resize(form.sizeHint());
            looks(form);
        });
    }
    void openAndLook(Form1 &form, const std::function<void()> &open);
    void throughSideWindows(Form1 &form);

    const QFont m_ownFont = QApplication::font();
    const QPalette m_ownPalette = QApplication::palette();
    Judge m_judge;
    std::function<void(QWidget &)> m_lookAt = [this](QWidget &window) { m_judge.look(window); };
};

namespace {

const QStringList NamedFonts{QStringLiteral("Tahoma"), QStringLiteral("Arial")};

template<class W = QAbstractButton>
W &control(Form1 &form, const char *name)
{
    auto *found = form.findChild<W *>(QLatin1StringView(name));
    if (!found)
        qFatal("no control %s", name);
    return *found;
}

} // namespace

void LooksTest::addLooks()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("points");
    QTest::addColumn<bool>("dark");
    QTest::newRow("DejaVu 10") << QStringLiteral("DejaVu Sans") << 10 << false;
    QTest::newRow("Noto 10, dark") << QStringLiteral("Noto Sans") << 10 << true;
    QTest::newRow("Liberation 9") << QStringLiteral("Liberation Sans") << 9 << false;
    QTest::newRow("DejaVu 14") << QStringLiteral("DejaVu Sans") << 14 << false;
}

void LooksTest::setLooks()
{
    QFETCH(QString, family);
    QFETCH(int, points);
    QFETCH(bool, dark);
    QVERIFY2(QFontDatabase::hasFamily(family), "see tools/packages");
    for (const QString &named : NamedFonts)
        QFont::insertSubstitution(named, family); // a desktop that has none of them
    QApplication::setFont(QFont(family, points));
    if (dark)
        QApplication::setPalette(QPalette(QColor(0x35, 0x35, 0x35), QColor(0x2a, 0x2a, 0x2a)));
}

void LooksTest::cleanup()
{
    for (const QString &named : NamedFonts)
        QFont::removeSubstitutions(named);
    QApplication::setFont(m_ownFont);
    QApplication::setPalette(m_ownPalette);
    m_judge.takeFindings();
}

void LooksTest::verifyNothingFound()
{
    const QStringList found = m_judge.takeFindings();
    for (const QString &each : found)
        qWarning("%s", qPrintable(each)); // as many as there are: a message of QVERIFY2 is cut
    QCOMPARE(found.size(), 0);
    QVERIFY(m_desktop.boxes.isEmpty()); // a run-time error, which would have ended the walk
}

void LooksTest::everyPane()
{
    setLooks();
    const ProgramFolder folder;
    walk(folder, [this](Form1 &form) {
        control(form, "Command7(25)").click(); // values to read
        Walk::throughPanes(
            form, [&] { m_judge.look(form); }, true);
        for (const auto &[command, list] :
             {std::pair(1142, "ListView3(15)"), {1143, "ListView3(16)"}, {1144, "ListView3(5)"}}) {
            form.executeCommand(command);
            auto &charts = control<RowListView>(form, list);
            for (int row = 0; row < charts.model()->rowCount(); row += 5)
                Q_EMIT charts.rowClicked(row);
            m_judge.look(form);
        }
        form.executeCommand(1141);
        for (int ring = 4; ring <= 9; ++ring)
            control<QComboBox>(form, qPrintable(QStringLiteral("Combo2(%1)").arg(ring))).setCurrentIndex(1);
        m_judge.look(form);
        for (const int pane : {1108, 1119}) {
            form.executeCommand(pane);
            form.executeCommand(1121);                         // with the Find bar
            control<QComboBox>(form, "Combo2(3)").hidePopup(); // a window of its own
            m_judge.look(form);
        }
        form.resize(1, form.height()); // as narrow as it gets
        m_judge.look(*form.statusBar());
    });
    verifyNothingFound();
}

void LooksTest::everyElement()
{
    setLooks();
    const ProgramFolder folder;
    walk(folder, [this](Form1 &form) {
        for (int element = 0; element < 118; ++element) {
            control(form, qPrintable(QStringLiteral("Command7(%1)").arg(element))).click();
            m_judge.look(control<QWidget>(form, "ReyFrame1"));
            m_judge.look(control<QWidget>(form, "ReyFrame2"));
        }
    });
    verifyNothingFound();
}

void LooksTest::openAndLook(Form1 &form, const std::function<void()> &open)
{
    open();
    SideWindow *window = Walk::sideWindow(form);
    QVERIFY(window);
    Walk::throughTabs(*window, [&] { m_lookAt(*window); });
    window->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void LooksTest::throughSideWindows(Form1 &form)
{
    openAndLook(form, [&] { form.executeCommand(1122); });
    openAndLook(form, [&] { form.findChild<QAction *>(QStringLiteral("actZoomIn"))->trigger(); });
    openAndLook(form, [&] { form.executeCommand(1058); });
    openAndLook(form, [&] {
        form.executeCommand(1058);
        SideWindow &options = *Walk::sideWindow(form);
        options.findChild<QTabBar *>()->setCurrentIndex(3);
        auto *pages = options.findChild<QComboBox *>(QStringLiteral("Combo1"));
        for (int page = 0; page < pages->count(); ++page) {
            pages->setCurrentIndex(page);
            m_lookAt(options);
        }
    });
    control(form, "Command7(16)").click();
    openAndLook(form, [&] { form.findChild<QAction *>(QStringLiteral("actWhereFrom"))->trigger(); });
    openAndLook(form, [&] {
        form.findChild<QAction *>(QStringLiteral("actSearchAll"))->trigger();
        // A blank first: a letter beside the edge of the field would hide it from the judge.
        control<QLineEdit>(form, "txtSearch").setText(QStringLiteral(" alanine codons"));
    });
    for (const char *opener : {"cmdhelp", "Command9"})
        openAndLook(form, [&] { control(form, opener).click(); });
    const auto openStructure = [&](int command, const char *list, int row) {
        form.executeCommand(command);
        openAndLook(form, [&] { Q_EMIT control<RowListView>(form, list).rowDoubleClicked(row); });
    };
    openStructure(1119, "ListView1", 0);
    for (const auto &[command, opener] :
         {std::pair(1142, "Command1"), {1144, "Command1"}, {1141, "Command2"}}) {
        form.executeCommand(command);
        openAndLook(form, [&form, name = opener] { control(form, name).click(); });
    }
}

void LooksTest::everySideWindow()
{
    setLooks();
    const ProgramFolder folder;
    walk(folder, [this](Form1 &form) { throughSideWindows(form); });
    verifyNothingFound();
}

// Every window stays on a display that is too small for it.
void LooksTest::smallDisplay()
{
    const ProgramFolder folder;
    run(folder, [this](Form1 &form) {
        const QRect display = form.screen()->availableGeometry();
        QVERIFY(ModulePanel::Size.width() > display.width());
        QVERIFY(display.contains(form.frameGeometry()));
        m_lookAt = [&](QWidget &window) {
            QVERIFY2(display.contains(window.frameGeometry()), qPrintable(window.objectName()));
        };
        throughSideWindows(form);
    });
}

static QString plainCaption(QString text)
{
    static const QRegularExpression ending(QStringLiteral("(\\.\\.\\.| ?:)$"));
    return text.remove(QLatin1Char('&')).simplified().remove(ending);
}

/// What one can read in @p window, also where lines are broken or a list is closed.
static QStringList captionsOf(QWidget &window)
{
    QStringList found;
    for (const PaintedText &painted : PaintedTexts::of(window))
        found << painted.text;
    for (const QObject *each : window.findChildren<QObject *>()) {
        found << each->property("text").toString();
        if (const auto *list = qobject_cast<const RowListView *>(each)) {
            for (const ListColumn &column : list->columns())
                found << column.title;
        }
        if (const auto *choice = qobject_cast<const QComboBox *>(each)) {
            for (int item = 0; item < choice->count(); ++item)
                found << choice->itemText(item);
        }
        if (const auto *tabs = qobject_cast<const QTabBar *>(each)) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                found << tabs->tabText(tab);
        }
    }
    std::transform(found.begin(), found.end(), found.begin(), plainCaption);
    return found;
}

// The captions that the help has in bold type exist, and it names every command and every key.
void LooksTest::theHelpNamesWhatIsThere()
{
    const ProgramFolder folder;
    folder.setOption(56, "1");    // the tip
    QMap<QString, QString> named; // captions and, on the page of the keys, cells: with their page
    for (const HelpBook::Topic &topic : HelpBook::contents()) {
        QXmlStreamReader page(readFile(QLatin1Char(':') + HelpBook::address(topic.page).path()));
        while (!page.atEnd()) {
            page.readNextStartElement();
            const bool isCaption = page.isStartElement() && page.attributes().hasAttribute("class");
            const bool isKey = page.isStartElement() && page.name() == u"td" && topic.page == "keyboard.html";
            if (isCaption || isKey) {
                const QString text = page.readElementText(QXmlStreamReader::IncludeChildElements);
                for (const QString &part : text.split(QLatin1String(isKey ? ", " : " > ")))
                    named[plainCaption(part)] = isKey ? QString() : topic.page;
            }
        }
    }
    QStringList found;
    QStringList missing;
    walk(folder, [&](Form1 &form) {
        const auto look = [&](QWidget &window) { found << captionsOf(window); };
        look(*Walk::sideWindow(form));
        Walk::sideWindow(form)->close();
        for (const QAction *action : form.findChildren<QAction *>()) {
            QStringList texts{plainCaption(action->text())};
            for (const QKeySequence &key : action->shortcuts())
                texts << key.toString();
            for (const QString &text : texts) {
                if (!action->objectName().isEmpty() && !text.isEmpty() && !named.contains(text))
                    missing << text;
            }
        }
        control(form, "Command7(25)").click();
        Walk::throughPanes(
            form, [&] { look(form); }, true);
        m_lookAt = look;
        throughSideWindows(form);
        for (const char *action : {"actMolarMass", "actStock"})
            openAndLook(form, [&] { form.findChild<QAction *>(QLatin1String(action))->trigger(); });
        for (QWidget *window : QApplication::topLevelWidgets()) // the menu of the tray
            look(*window);
    });
    for (auto caption = named.cbegin(); caption != named.cend(); ++caption) {
        if (!caption->isEmpty() && !found.contains(caption.key()))
            missing << *caption + ": " + caption.key();
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
}

void LooksTest::tipAndSplash()
{
    setLooks();
    const ProgramFolder folder;
    folder.setOption(56, "1");
    walk(folder, [&](Form1 &form) {
        SideWindow *tip = Walk::sideWindow(form);
        QVERIFY(tip);
        const auto tips = Tips::read(folder.path(QStringLiteral("TIPOFDAY_UK.TXT")));
        for (const QString &text : tips.value_or(QStringList())) {
            tip->findChild<QLabel *>(QStringLiteral("lblTipText"))->setText(text);
            m_judge.look(*tip);
        }
        frmload splash;
        splash.show();
        m_judge.look(splash);
        tip->close();
    });
    verifyNothingFound();
}

void LooksTest::everyStyleOfTheToolBar()
{
    setLooks();
    const ProgramFolder folder;
    walk(folder, [this](Form1 &form) {
        for (int style = 0; style < 6; ++style) {
            form.executeCommand(1058);
            SideWindow &options = *Walk::sideWindow(form);
            options.findChild<QComboBox *>(QStringLiteral("Combo2"))->setCurrentIndex(style);
            options.findChild<QAbstractButton *>(QStringLiteral("XPButton1"))->click();
            m_judge.look(form);
        }
    });
    verifyNothingFound();
}

void LooksTest::focusIsSeen()
{
    setLooks();
    const ProgramFolder folder;
    walk(folder, [this](Form1 &form) {
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        const auto throughChain = [this](QWidget &window) {
            for (QWidget *each : window.findChildren<QWidget *>()) {
                if (each->isVisible() && each->isEnabled() && (each->focusPolicy() & Qt::TabFocus) &&
                    !each->focusProxy())
                    m_judge.lookAtFocus(*each);
            }
        };
        control(form, "Command7(25)").click();
        form.setAttribute(Qt::WA_KeyboardFocusChange); // as after Tab: styles mark the focus from then on
        Walk::throughPanes(form, [&] { throughChain(form); });
        form.executeCommand(1058);
        SideWindow &options = *Walk::sideWindow(form);
        options.setAttribute(Qt::WA_KeyboardFocusChange);
        QVERIFY(QTest::qWaitForWindowActive(&options));
        Walk::throughTabs(options, [&] { throughChain(options); });
        options.close();
    });
    verifyNothingFound();
}

QTEST_MAIN(LooksTest)
#include "looks_test.moc"
