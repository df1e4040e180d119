#include "widgets/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QResource>
#include <QSvgRenderer>

// Resources of a static library are registered by hand, outside any namespace.
static void registerIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace {

const auto Svg = QLatin1StringView(".svg");

QString pathOf(const QString &name)
{
    registerIcons();
    return QStringLiteral(":/icons/") + name;
}

/// The picture of this size that the build has drawn; none for sizes that are seldom asked for.
QImage drawnAtBuild(const QString &path, QSize size)
{
    constexpr int BytesPerPixel = 4;
    const QResource pixels(QStringLiteral("%1-%2.argb").arg(path).arg(size.width()));
    if (size.height() != size.width() ||
        pixels.size() != qint64(size.width()) * size.height() * BytesPerPixel)
        return {};
    const QImage inProgram(pixels.data(), size.width(), size.height(), QImage::Format_ARGB32_Premultiplied);
    return inProgram.copy(); // nothing says that its pixels begin there at a multiple of four
}

/// Draws a drawing at the size that is asked for, once.
class DrawnIconEngine : public QIconEngine
{
public:
    explicit DrawnIconEngine(QString path) : m_path(std::move(path)) {}

    QIconEngine *clone() const override { return new DrawnIconEngine(*this); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        painter->drawPixmap(rect, pixmap(rect.size() * painter->device()->devicePixelRatio(), mode, state));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        const QString key = QStringLiteral("%1 %2x%3 %4")
                                .arg(m_path)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(tint(mode), 0, 16);
        QPixmap picture;
        if (!QPixmapCache::find(key, &picture)) {
            picture = draw(size, mode);
            QPixmapCache::insert(key, picture);
        }
        return picture;
    }

protected:
    /// What the picture depends on besides its drawing and its size.
    virtual QRgb tint(QIcon::Mode) const { return 0; }

    virtual QPixmap draw(const QSize &size, QIcon::Mode) const
    {
        if (const QImage drawn = drawnAtBuild(m_path, size); !drawn.isNull())
            return QPixmap::fromImage(drawn);
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        QSvgRenderer(m_path + Svg).render(&painter);
        return picture;
    }

private:
    const QString m_path; ///< without its ending
};

/// Draws an icon's lines in the palette's colour of the moment.
class TintedIconEngine final : public DrawnIconEngine
{
public:
    using DrawnIconEngine::DrawnIconEngine;
    QIconEngine *clone() const override { return new TintedIconEngine(*this); }

protected:
    QRgb tint(QIcon::Mode mode) const override
    {
        const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        return QGuiApplication::palette().color(group, QPalette::ButtonText).rgba();
    }

    QPixmap draw(const QSize &size, QIcon::Mode mode) const override
    {
        QPixmap picture = DrawnIconEngine::draw(size, mode);
        QPainter painter(&picture);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(picture.rect(), QColor::fromRgba(tint(mode)));
        return picture;
    }
};

/// The program's icon. A window manager is given each of its sizes; larger ones belong to the menu entry.
class ProgramIconEngine final : public DrawnIconEngine
{
public:
    using DrawnIconEngine::DrawnIconEngine;
    QIconEngine *clone() const override { return new ProgramIconEngine(*this); }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override
    {
        QList<QSize> sizes;
        for (const int side : {16, 24, 32, 48, 64})
            sizes << QSize(side, side);
        return sizes;
    }
};

} // namespace

QIcon Icons::named(const QString &name)
{
    const QString path = pathOf(name);
    return QFile::exists(path + Svg) ? QIcon(new TintedIconEngine(path)) : QIcon();
}

QIcon Icons::program()
{
    return QIcon(new ProgramIconEngine(pathOf(QStringLiteral("alembra"))));
}
