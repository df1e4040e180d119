#include "widgets/icons.h"

#include <QDir>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

// Resources of a static library are registered by hand, outside any namespace.
static void registerIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace {

/// The icon of all sizes that the build has drawn; larger ones are not made up, other ones are scaled down.
QIcon drawn(const QString &name)
{
    registerIcons();
    QIcon icon;
    const QDir pictures(QStringLiteral(":/icons"), name + QStringLiteral("-[0-9]*.png"));
    for (const QFileInfo &picture : pictures.entryInfoList())
        icon.addFile(picture.filePath());
    return icon;
}

/// Shows an icon's lines in the colour that texts on buttons have at the moment.
class TintedIconEngine final : public QIconEngine
{
public:
    explicit TintedIconEngine(QIcon lines) : m_lines(std::move(lines)) {}

    QIconEngine *clone() const override { return new TintedIconEngine(*this); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        painter->drawPixmap(rect, pixmap(rect.size() * painter->device()->devicePixelRatio(), mode, state));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        QPixmap picture = m_lines.pixmap(size, 1);
        const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        QPainter painter(&picture);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(picture.rect(), QGuiApplication::palette().color(group, QPalette::ButtonText));
        return picture;
    }

private:
    const QIcon m_lines;
};

} // namespace

QIcon Icons::named(const QString &name)
{
    const QIcon lines = drawn(name);
    return lines.isNull() ? QIcon() : QIcon(new TintedIconEngine(lines));
}

QIcon Icons::program()
{
    return drawn(QStringLiteral("alembra"));
}
