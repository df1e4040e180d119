#include "widgets/icons.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>
#include <QTest>

// The pictures that the build has drawn, each as sharp as its drawing.
class IconsTest final : public QObject
{
    Q_OBJECT

    static QImage drawing(const QString &name, int size, const QColor &tint)
    {
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        QSvgRenderer(QStringLiteral(ALEMBRA_SOURCE "/data/icons/%1.svg").arg(name)).render(&painter);
        if (tint.isValid()) {
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(image.rect(), tint);
        }
        return image;
    }

    static QImage shown(const QIcon &icon, int size)
    {
        return icon.pixmap(QSize(size, size), 1)
            .toImage()
            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }

private Q_SLOTS:
    void everySizeShowsItsDrawing_data()
    {
        QTest::addColumn<QColor>("ink");
        QTest::newRow("light") << QColor(Qt::black);
        QTest::newRow("dark") << QColor(0xe0, 0xe0, 0xe0);
    }

    void everySizeShowsItsDrawing()
    {
        QFETCH(const QColor, ink);
        QPalette palette;
        palette.setColor(QPalette::ButtonText, ink);
        QGuiApplication::setPalette(palette);
        const QDir drawings(QStringLiteral(ALEMBRA_SOURCE "/data/icons"), QStringLiteral("*.svg"));
        QVERIFY(drawings.count() > 30);
        for (const QString &file : drawings.entryList()) {
            const QString name = file.chopped(4);
            const bool own = name == QLatin1StringView("alembra");
            const QIcon icon = own ? Icons::program() : Icons::named(name);
            for (const int size : own ? QList{16, 24, 32, 48, 64, 220} : QList{16, 18, 22, 24, 32, 80}) {
                QVERIFY2(shown(icon, size) == drawing(name, size, own ? QColor() : ink),
                         qPrintable(QStringLiteral("%1 at %2").arg(name).arg(size)));
            }
        }
    }

    void anUnknownNameIsNoIcon() { QVERIFY(Icons::named(QStringLiteral("nothing")).isNull()); }
};

QTEST_MAIN(IconsTest)

#include "icons_test.moc"
