#include "widgets/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

// Resources of a static library need this call, outside any namespace.
static void registerIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace {

constexpr std::array LineSizes{16, 18, 22, 24, 32, 48, 64, 80}; // pixels, as drawn by the build

QString pictureOf(const QString &name, int size)
{
    registerIcons();
    return u":/icons/%1-%2.png"_s.arg(name).arg(size);
}

/// Draws an icon's lines in the current text colour of buttons.
class TintedIconEngine final : public QIconEngine
{
public:
    explicit TintedIconEngine(QString name) : m_name(std::move(name)) {}

    QIconEngine *clone() const override { return new TintedIconEngine(*this); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        painter->drawPixmap(rect, pixmap(rect.size() * painter->device()->devicePixelRatio(), mode, state));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        const auto drawn = std::lower_bound(LineSizes.begin(), LineSizes.end() - 1, size.height());
        QPixmap picture(pictureOf(m_name, *drawn));
        if (picture.size() != size)
            picture = picture.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        QPainter painter(&picture);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(picture.rect(), QGuiApplication::palette().color(group, QPalette::ButtonText));
        return picture;
    }

private:
    const QString m_name;
};

} // namespace

QIcon Icons::named(const QString &name)
{
    return QFile::exists(pictureOf(name, LineSizes.front())) ? QIcon(new TintedIconEngine(name)) : QIcon();
}

QIcon Icons::program()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 220}) // the last for the splash and About
        icon.addFile(pictureOf(u"alembra"_s, size));
    return icon;
}
