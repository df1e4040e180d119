#include "core/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

// Resources of a static library are registered by hand, outside any namespace.
static void registerIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace {

QString pathOf(const QString &name)
{
    registerIcons();
    return QStringLiteral(":/icons/%1.svg").arg(name);
}

/// Draws an icon's lines in the palette's colour of the moment.
class TintedIconEngine final : public QIconEngine
{
public:
    explicit TintedIconEngine(QString path) : m_path(std::move(path)) {}

    QIconEngine *clone() const override { return new TintedIconEngine(m_path); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        painter->drawPixmap(rect, pixmap(rect.size() * painter->device()->devicePixelRatio(), mode, state));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        QSvgRenderer(m_path).render(&painter);
        const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(picture.rect(), QGuiApplication::palette().color(group, QPalette::ButtonText));
        return picture;
    }

private:
    const QString m_path;
};

} // namespace

QIcon Icons::named(const QString &name)
{
    const QString path = pathOf(name);
    return QFile::exists(path) ? QIcon(new TintedIconEngine(path)) : QIcon();
}

QIcon Icons::program()
{
    const QString path = pathOf(QStringLiteral("alembra"));
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        QSvgRenderer(path).render(&painter);
        icon.addPixmap(picture);
    }
    return icon;
}
