#include "tests/support/testclass.h"
#include "widgets/icons.h"
#include "widgets/tabstrip.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QSignalSpy>
#include <QSvgRenderer>

class IconsTest final : public QObject
{
    Q_OBJECT

    static QImage drawing(const QString &path, int size, const QColor &tint)
    {
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        QSvgRenderer(path).render(&painter);
        if (tint.isValid()) {
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(image.rect(), tint);
        }
        return image;
    }

private Q_SLOTS:
    // What the build has drawn, each as sharp as its drawing.
    void everySizeShowsItsDrawing()
    {
        const QDir drawings(ALEMBRA_SOURCE "/data/icons", "*.svg");
        QVERIFY(drawings.count() > 30);
        for (const QColor &ink : {QColor(Qt::black), QColor(0xe0, 0xe0, 0xe0)}) { // light, dark
            QPalette palette;
            palette.setColor(QPalette::ButtonText, ink);
            QGuiApplication::setPalette(palette);
            for (const QFileInfo &file : drawings.entryInfoList()) {
                const bool own = file.baseName() == "alembra";
                const QIcon icon = own ? Icons::program() : Icons::named(file.baseName());
                for (const int size : own ? QList{16, 24, 32, 48, 64, 220} : QList{16, 18, 22, 24, 32, 80}) {
                    const QImage shown = icon.pixmap({size, size}, 1).toImage();
                    QVERIFY2(shown.convertToFormat(QImage::Format_ARGB32_Premultiplied) ==
                                 drawing(file.filePath(), size, own ? QColor() : ink),
                             qPrintable(QString("%1 at %2").arg(file.baseName()).arg(size)));
                }
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
