#include "app/frmload.h"
#include "sidewindows/helpbook.h"
#include "sidewindows/tips.h"
#include "tests/e2e/judge.h"
#include "tests/e2e/walk.h"
#include "tests/support/wholerun.h"
#include "widgets/modulepanel.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QStatusBar>
#include <QXmlStreamReader>

/// Nothing is clipped, covered or hard to read, in every pane and window of the running program, with fonts
/// and palettes of common desktops; the factor of the display comes with QT_SCALE_FACTOR.
class LooksTest final : public WholeRun
{
    Q_OBJECT

private Q_SLOTS:
    void everyPane()
    {
        inAllLooks([this](Form1 &form) {
            get<QAbstractButton>(form, "Command7(25)").click(); // values to read
            const auto look = [&] { m_judge.look(form); };
            Walk::throughPanes(form, look, true);
            for (const auto &[command, list] :
                 {std::pair(1142, "ListView3(15)"), {1143, "ListView3(16)"}, {1144, "ListView3(5)"}}) {
                form.executeCommand(command);
                auto &charts = get<RowListView>(form, list);
                for (int row = 0; row < charts.model()->rowCount(); row += 5)
                    Q_EMIT charts.rowClicked(row);
                look();
            }
            form.executeCommand(1141);
            for (int ring = 4; ring <= 9; ++ring)
                get<QComboBox>(form, QString("Combo2(%1)").arg(ring)).setCurrentIndex(1);
            look();
            for (const int pane : {1108, 1119}) {
                form.executeCommand(pane);
                form.executeCommand(CommandId::Find);          // with the Find bar
                get<QComboBox>(form, "Combo2(3)").hidePopup(); // a window of its own
                look();
            }
            form.resize(1, form.height()); // as narrow as it gets
            m_judge.look(*form.statusBar());
        });
    }

    void everyElement()
    {
        inAllLooks([this](Form1 &form) {
            for (int element = 0; element < 118; ++element) {
                get<QAbstractButton>(form, QString("Command7(%1)").arg(element)).click();
                m_judge.look(get(form, "ReyFrame1"));
                m_judge.look(get(form, "ReyFrame2"));
            }
        });
    }

    void everySideWindow()
    {
        inAllLooks([this](Form1 &form) {
            Walk::throughSideWindows(form, [this](SideWindow &window) {
                m_judge.look(window);
                auto *pages = window.findChild<QComboBox *>("Combo1"); // of the statistics
                for (int page = 0; pages && pages->isVisible() && page < pages->count(); ++page) {
                    pages->setCurrentIndex(page);
                    m_judge.look(window);
                }
            });
        });
    }

    void tipAndSplash()
    {
        const auto steps = [this](Form1 &form) {
            SideWindow &tip = *Walk::sideWindow(form);
            const auto tips = Tips::read(ALEMBRA_FOLDER "/TIPOFDAY_UK.TXT");
            for (const QString &text : tips.value()) {
                get<QLabel>(tip, "lblTipText").setText(text);
                m_judge.look(tip);
            }
            frmload splash;
            splash.show();
            m_judge.look(splash);
            tip.close();
        };
        inAllLooks(steps, "1");
    }

    void everyStyleOfTheToolBar()
    {
        inAllLooks([this](Form1 &form) {
            for (int style = 0; style < 6; ++style) {
                form.executeCommand(1058);
                const SideWindow &options = *Walk::sideWindow(form);
                get<QComboBox>(options, "Combo2").setCurrentIndex(style);
                get<QAbstractButton>(options, "XPButton1").click();
                m_judge.look(form);
            }
        });
    }

    void focusIsSeen()
    {
        inAllLooks([this](Form1 &form) {
            form.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&form));
            const auto throughChain = [this](QWidget &window) {
                for (QWidget *each : window.findChildren<QWidget *>()) {
                    if (each->isVisible() && each->isEnabled() && (each->focusPolicy() & Qt::TabFocus) &&
                        !each->focusProxy())
                        m_judge.lookAtFocus(*each);
                }
            };
            get<QAbstractButton>(form, "Command7(25)").click();
            form.setAttribute(Qt::WA_KeyboardFocusChange); // as after Tab: styles mark the focus from then on
            Walk::throughPanes(form, [&] { throughChain(form); });
            form.executeCommand(1058);
            SideWindow &options = *Walk::sideWindow(form);
            options.setAttribute(Qt::WA_KeyboardFocusChange);
            QVERIFY(QTest::qWaitForWindowActive(&options));
            Walk::throughTabs(options, [&] { throughChain(options); });
            options.close();
        });
    }

    // Every window stays on a display that is too small for it.
    void smallDisplay()
    {
        run([](Form1 &form) {
            const QRect display = form.screen()->availableGeometry();
            QVERIFY(ModulePanel::Size.width() > display.width());
            QVERIFY(display.contains(form.frameGeometry()));
            Walk::throughSideWindows(form, [&](const SideWindow &window) {
                QVERIFY2(display.contains(window.frameGeometry()), qPrintable(window.objectName()));
            });
        });
    }

    // The captions that the help has in bold type exist, and it names every command and every key.
    void theHelpNamesWhatIsThere()
    {
        QMap<QString, QString> named; // captions and, on the page of the keys, cells: with their page
        for (const HelpBook::Topic &topic : HelpBook::contents()) {
            QXmlStreamReader page(readFile(':' + HelpBook::address(topic.page).path()));
            while (!page.atEnd()) {
                page.readNextStartElement();
                const bool isCaption = page.isStartElement() && page.attributes().hasAttribute("class");
                const bool isKey =
                    page.isStartElement() && page.name() == u"td" && topic.page == "keyboard.html";
                if (isCaption || isKey) {
                    const QString text = page.readElementText(QXmlStreamReader::IncludeChildElements);
                    for (const QString &part : text.split(isKey ? ", " : " > "))
                        named[plainCaption(part)] = isKey ? QString() : topic.page;
                }
            }
        }
        QStringList found;
        QStringList missing;
        const ProgramFolder folder;
        folder.setOption(56, "1"); // the tip
        run(folder, [&](Form1 &form) {
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
            get<QAbstractButton>(form, "Command7(25)").click();
            const auto lookAtForm = [&] { look(form); };
            Walk::throughPanes(form, lookAtForm, true);
            Walk::throughSideWindows(form, look);
            form.executeCommand(1119); // a row of which there is a structure
            get(form, "ListView1").setFocus();
            get<RowListView>(form, "ListView1").selectRow(0);
            Q_EMIT get<QMenu>(form, "mnuShowIn").aboutToShow();
            lookAtForm();
            for (const char *action : {"actMolarMass", "actStock"}) {
                get<QAction>(form, action).trigger();
                look(*Walk::sideWindow(form));
                Walk::sideWindow(form)->close();
            }
            for (QWidget *window : QApplication::topLevelWidgets()) // the menu of the tray
                look(*window);
        });
        for (auto caption = named.cbegin(); caption != named.cend(); ++caption) {
            if (!caption->isEmpty() && !found.contains(caption.key()))
                missing << *caption + ": " + caption.key();
        }
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
    }

private:
    static QString plainCaption(QString text)
    {
        static const QRegularExpression ending(R"((\.\.\.| ?:)$)");
        return text.remove('&').simplified().remove(ending);
    }

    // What one can read, also where lines are broken or a list is closed.
    static QStringList captionsOf(QWidget &window)
    {
        QStringList found = Judge::textsOf(window);
        for (const QObject *each : window.findChildren<QObject *>()) {
            found << each->property("text").toString();
            if (const auto *list = qobject_cast<const RowListView *>(each)) {
                for (const ListColumn &column : list->columns())
                    found << column.title;
            }
            const auto *choice = qobject_cast<const QComboBox *>(each);
            for (int item = 0; choice && item < choice->count(); ++item)
                found << choice->itemText(item);
            const auto *tabs = qobject_cast<const QTabBar *>(each);
            for (int tab = 0; tabs && tab < tabs->count(); ++tab)
                found << tabs->tabText(tab);
        }
        std::transform(found.begin(), found.end(), found.begin(), plainCaption);
        return found;
    }

    void inAllLooks(const Steps &steps, const QByteArray &tip = "0")
    {
        using Look = std::tuple<const char *, int, bool>; // whether it is dark
        const Look rows[] = {{"DejaVu Sans", 10, false},
                             {"Noto Sans", 10, true},
                             {"Liberation Sans", 9, false},
                             {"DejaVu Sans", 14, false}};
        const QFont font = QApplication::font();
        const QPalette palette = QApplication::palette();
        for (const auto &[family, points, dark] : rows) {
            QVERIFY2(QFontDatabase::hasFamily(family), "see tools/packages");
            for (const char *named : {"Tahoma", "Arial"})
                QFont::insertSubstitutions(named, {family}); // a desktop that has none of them
            QApplication::setFont(QFont(family, points));
            QApplication::setPalette(dark ? QPalette(QColor(0x35, 0x35, 0x35), QColor(0x2a, 0x2a, 0x2a))
                                          : palette);
            const ProgramFolder folder;
            folder.setOption(56, tip);
            run(folder, [&](Form1 &form) {
                QVERIFY(form.screen()->availableGeometry().contains(QRect({}, form.size())));
                form.resize(form.sizeHint());
                steps(form);
            });
            for (const char *named : {"Tahoma", "Arial"})
                QFont::removeSubstitutions(named);
            const QStringList found = m_judge.takeFindings();
            for (const QString &each : found) // as many as there are: a message of QVERIFY2 is cut
                qWarning("%s %d: %s", family, points, qPrintable(each));
            QCOMPARE(found.size(), 0);
            QVERIFY(m_desktop.boxes.isEmpty()); // a run-time error, which would have ended the walk
        }
        QApplication::setFont(font);
        QApplication::setPalette(palette);
    }

    Judge m_judge;
};

QTEST_MAIN(LooksTest)
#include "looks_test.moc"
