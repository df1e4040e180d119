#include "tests/support/testclass.h"
#include "widgets/icons.h"
#include "widgets/tabstrip.h"

#include <QDir>
#include <QGuiApplication>
#include <QSignalSpy>

class IconsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What the build has drawn, each as sharp as its drawing.
    void everySizeShowsItsDrawing()
    {
        const QDir drawings(ALEMBRA_SOURCE "/data/icons", "*.svg");
        QVERIFY(drawings.count() > 30);
        const QColor ink(0x20, 0x40, 0xe0); // of no drawing
        QPalette palette;
        palette.setColor(QPalette::ButtonText, ink);
        QGuiApplication::setPalette(palette);
        for (const QFileInfo &file : drawings.entryInfoList()) {
            const bool own = file.baseName() == "alembra";
            const QIcon icon = own ? Icons::program() : Icons::named(file.baseName());
            for (const int size : own ? QList{16, 24, 32, 48, 64, 220} : QList{16, 18, 22, 24, 32, 80}) {
                QImage drawn = QIcon(file.filePath()).pixmap({size, size}, 1).toImage();
                const QImage alpha = drawn.convertToFormat(QImage::Format_Alpha8);
                if (!own) {
                    drawn.fill(ink);
                    drawn.setAlphaChannel(alpha);
                }
                const QImage shown = icon.pixmap({size, size}, 1).toImage();
                QVERIFY2(shown.convertToFormat(drawn.format()) == drawn, qPrintable(file.baseName()));
            }
        }
        QVERIFY(Icons::named("nothing").isNull());
    }

    void everyClickOnATabIsToldOnceAlsoOnTheSelectedOne()
    {
        for (const auto direction : {TabStrip::Across, TabStrip::Down}) {
            TabStrip strip("TabStrip3", {"Length", "Surface", "Volume"}, direction, nullptr);
            strip.resize(strip.sizeHint());
            const QSignalSpy clicks(&strip, &TabStrip::tabClicked);
            const auto click = [&](int tab, Qt::MouseButton button) {
                QTest::mouseClick(&strip, button, {}, strip.tabRect(tab - 1).center());
            };
            click(1, Qt::LeftButton);
            click(3, Qt::LeftButton);
            click(3, Qt::LeftButton);
            click(3, Qt::RightButton);
            strip.selectTab(2);
            QTest::keyClick(&strip, direction == TabStrip::Down ? Qt::Key_Up : Qt::Key_Left);
            QCOMPARE(clicks, (QList<QVariantList>{{1}, {3}, {3}, {2}, {1}}));
            QCOMPARE(strip.selectedTab(), 1);
        }
    }
};

const TestClass<IconsTest> iconsTest;
#include "icons_test.moc"
