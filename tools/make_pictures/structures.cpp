#include "tools/make_pictures/kinds.h"

#include "tools/make_pictures/formula.h"
#include "tools/make_pictures/painting.h"
#include "tools/make_pictures/picturefolder.h"
#include "tools/tables/table.h"

#include <QFontMetrics>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr Formula::Style Scale{18, 13};
constexpr int Margin = 5;
constexpr int CaptionHeight = 38; // of two lines
constexpr int Gap = 28;           // between two formulas in one picture

struct Compound
{
    QString name;
    QString kind;
    Formula formula;

    int width() const
    {
        const int caption = QFontMetrics(textFont(13, true)).horizontalAdvance(name);
        return std::max(int(std::ceil(formula.size().width())), caption);
    }
};

/// The compound of each row, or nothing where the table gives no structure.
QList<std::optional<Compound>> readCompounds(const QString &file, const QString &kind)
{
    const Table table = Table::read(file);
    QList<std::optional<Compound>> compounds;
    for (int row = 0; row < table.rowCount(); ++row) {
        compounds << std::nullopt;
        const QString smiles = table.cell(row, "smiles");
        if (smiles.isEmpty())
            continue;
        const std::optional<Formula> formula = Formula::fromSmiles(smiles, Scale);
        if (!formula)
            table.fail(row, u"\"%1\" is not a structure"_s.arg(smiles));
        compounds.last() = Compound{table.cell(row, "name"), kind, *formula};
    }
    return compounds;
}

/// Reduces the picture to sixteen greys, so that the file needs half a byte for each pixel.
QImage inSixteenGreys(const QImage &picture)
{
    QList<QRgb> greys;
    for (int i = 0; i < 16; ++i)
        greys << qRgb(i * 17, i * 17, i * 17);
    return picture.convertToFormat(QImage::Format_Indexed8, greys, Qt::ThresholdDither | Qt::AvoidDither);
}

/// Crops the picture to what is drawn, with a narrow margin.
QImage cropped(const QImage &picture)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) < 255)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return picture.copy(ink.adjusted(-Margin, -Margin, Margin, Margin) & picture.rect());
}

/// The formula alone: the window and the report print the name beside it.
QImage drawCompound(const Compound &compound)
{
    const QSizeF size = compound.formula.size();
    QImage picture =
        blankPicture(int(std::ceil(size.width())) + 2 * Margin, int(std::ceil(size.height())) + 2 * Margin);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    compound.formula.paint(painter, {Margin, Margin});
    painter.end();
    return inSixteenGreys(cropped(picture));
}

/// A solvent and an amino acid side by side, formulas centred on one line, each above its name and kind.
QImage drawCompounds(const QList<Compound> &compounds)
{
    int width = 2 * Margin + Gap * int(compounds.size() - 1);
    int height = 0;
    for (const Compound &compound : compounds) {
        width += compound.width();
        height = std::max(height, int(std::ceil(compound.formula.size().height())));
    }
    QImage picture = blankPicture(width, height + 2 * Margin + CaptionHeight);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::black);

    double x = Margin;
    for (const Compound &compound : compounds) {
        const QSizeF size = compound.formula.size();
        compound.formula.paint(
            painter, {x + (compound.width() - size.width()) / 2, Margin + (height - size.height()) / 2});
        const QRectF caption(x, Margin + height, compound.width(), CaptionHeight);
        painter.setFont(textFont(13, true));
        painter.drawText(caption.adjusted(0, 0, 0, -CaptionHeight / 2.0),
                         Qt::AlignHCenter | Qt::AlignBottom | Qt::TextDontClip, compound.name);
        painter.setFont(textFont(12));
        painter.drawText(caption.adjusted(0, CaptionHeight / 2.0, 0, 0),
                         Qt::AlignHCenter | Qt::AlignTop | Qt::TextDontClip, compound.kind);
        x += compound.width() + Gap;
    }
    painter.end();
    return inSixteenGreys(cropped(picture));
}

} // namespace

void drawStructures(const QString &data, const PictureFolder &pictures)
{
    const auto solvents = readCompounds(data + u"/drawing/structures_solvants.tsv"_s, u"solvent"_s);
    const auto acids = readCompounds(data + u"/drawing/structures_acidesamines.tsv"_s, u"amino acid"_s);
    for (int row = 0; row < std::max(solvents.size(), acids.size()); ++row) {
        const auto solvent = solvents.value(row);
        const auto acid = acids.value(row);
        const QString numbered = u"chemicals/%1.bmp"_s.arg(row + 1);
        if (solvent)
            pictures.write(u"chemicals/%1.bmp"_s.arg(solvent->name), drawCompound(*solvent));
        // Solvents and amino acids share the numbers, so a picture that belongs to both lists shows both.
        if (solvent && acid)
            pictures.write(numbered, drawCompounds({*solvent, *acid}));
        else if (solvent || acid)
            pictures.write(numbered, drawCompound(solvent ? *solvent : *acid));
    }
}
