#include "tools/make_pictures/structures.h"

#include "tools/make_pictures/formula.h"
#include "tools/make_pictures/painting.h"
#include "tools/make_pictures/picturefolder.h"
#include "tools/make_pictures/table.h"

#include <QFontMetrics>

#include <algorithm>
#include <cmath>

namespace {

constexpr Formula::Style Scale{18, 13};
constexpr int Margin = 12;
constexpr int CaptionHeight = 26;
constexpr int Gap = 28; // between two formulas in one picture
constexpr int MinimumWidth = 180;

struct Compound
{
    QString name;
    Formula formula;

    int width() const
    {
        const int caption = QFontMetrics(textFont(13, true)).horizontalAdvance(name);
        return std::max(int(std::ceil(formula.size().width())), caption);
    }
};

/// Row by row the compound, or nothing where the table gives no structure.
QList<std::optional<Compound>> readCompounds(const QString &file)
{
    const Table table = Table::read(file, {QStringLiteral("name"), QStringLiteral("smiles")});
    QList<std::optional<Compound>> compounds;
    for (int row = 0; row < table.rowCount(); ++row) {
        compounds << std::nullopt;
        const QString smiles = table.cell(row, QStringLiteral("smiles"));
        if (smiles.isEmpty())
            continue;
        const std::optional<Formula> formula = Formula::fromSmiles(smiles, Scale);
        if (!formula)
            table.fail(row, QStringLiteral("\"%1\" is not a structure").arg(smiles));
        compounds.last() = Compound{table.cell(row, QStringLiteral("name")), *formula};
    }
    return compounds;
}

/// Sixteen greys, so that the file takes half a byte for a pixel.
QImage inSixteenGreys(const QImage &picture)
{
    QList<QRgb> greys;
    for (int i = 0; i < 16; ++i)
        greys << qRgb(i * 17, i * 17, i * 17);
    return picture.convertToFormat(QImage::Format_Indexed8, greys, Qt::ThresholdDither | Qt::AvoidDither);
}

/// The compounds side by side, formulas centred on one line, each above its name.
QImage drawCompounds(const QList<Compound> &compounds)
{
    int width = 2 * Margin + Gap * int(compounds.size() - 1);
    int height = 0;
    for (const Compound &compound : compounds) {
        width += compound.width();
        height = std::max(height, int(std::ceil(compound.formula.size().height())));
    }
    QImage picture = blankPicture(std::max(width, MinimumWidth), height + 2 * Margin + CaptionHeight);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::black);
    painter.setFont(textFont(13, true));

    double x = Margin + (picture.width() - width) / 2.0;
    for (const Compound &compound : compounds) {
        const QSizeF size = compound.formula.size();
        compound.formula.paint(
            painter, {x + (compound.width() - size.width()) / 2, Margin + (height - size.height()) / 2});
        painter.drawText(QRectF(x, Margin + height, compound.width(), CaptionHeight),
                         Qt::AlignHCenter | Qt::AlignBottom | Qt::TextDontClip, compound.name);
        x += compound.width() + Gap;
    }
    painter.end();
    return inSixteenGreys(picture);
}

} // namespace

void drawStructures(const QString &data, const PictureFolder &pictures)
{
    const auto solvents = readCompounds(data + QStringLiteral("/drawing/structures_solvants.tsv"));
    const auto acids = readCompounds(data + QStringLiteral("/drawing/structures_acidesamines.tsv"));
    for (int row = 0; row < std::max(solvents.size(), acids.size()); ++row) {
        QList<Compound> shown;
        if (solvents.value(row))
            shown << *solvents[row];
        if (!shown.isEmpty())
            pictures.write(QStringLiteral("chemicals/%1.bmp").arg(shown.first().name), drawCompounds(shown));
        if (acids.value(row))
            shown << *acids[row];
        if (!shown.isEmpty())
            pictures.write(QStringLiteral("chemicals/%1.bmp").arg(row + 1), drawCompounds(shown));
    }
}
