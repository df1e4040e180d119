#include "widgets/picturewindow.h"

#include "widgets/controls.h"
#include "widgets/windowunits.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr double BelowSheet = 119; ///< twips; the picture is centred in the rest
constexpr int Margin = 8;
constexpr int LabelHeight = 28;

QFrame *whiteSheet(QWidget *parent)
{
    auto *sheet = new QFrame(parent);
    sheet->setFrameShape(QFrame::StyledPanel);
    sheet->setAutoFillBackground(true);
    // Formulas and the texts beside them are black on white, on a dark desktop too.
    QPalette palette = sheet->palette();
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::WindowText, Qt::black);
    sheet->setPalette(palette);
    return sheet;
}

} // namespace

PictureWindow::PictureWindow(const Design &design, QWidget &owner)
    : SideWindow(design.name, owner), m_besideSheet(design.besideSheet)
{
    setWindowTitle(design.caption);
    setFixedSize(design.size);
    const int right = WindowUnits::pixels(m_besideSheet);
    const QRect sheetArea(Margin, Margin, width() - right - 2 * Margin,
                          height() - WindowUnits::pixels(BelowSheet) - 2 * Margin);
    QFrame *sheet = whiteSheet(this);
    sheet->setGeometry(sheetArea);

    Label1 = Controls::heading(u"Label1"_s, {}, sheet);
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setGeometry(0, 2, sheetArea.width(), LabelHeight);
    Label2 = Controls::label(u"Label2"_s, {}, sheet);
    Label2->setAlignment(Qt::AlignCenter);
    Label2->setGeometry(0, LabelHeight, sheetArea.width(), sheetArea.height() - 2 * LabelHeight);
    Label2->hide();
    Picture1 = new PictureBox(u"Picture1"_s, this);

    QPushButton *cmdOK = makeOkButton(u"cmdOK"_s);
    const int left = sheetArea.right() + 1 + Margin;
    cmdOK->setGeometry(left, sheetArea.bottom() - 29, width() - left - Margin, 30);
}

void PictureWindow::setPicture(const QImage &picture)
{
    const QSize room(width() - WindowUnits::pixels(m_besideSheet) - 4 * Margin,
                     height() - WindowUnits::pixels(BelowSheet) - 2 * (Margin + LabelHeight + 2));
    QSize shown = picture.size();
    if (shown.width() > room.width() || shown.height() > room.height())
        shown.scale(room, Qt::KeepAspectRatio);
    Picture1->setPicture(picture);
    Picture1->setAccessibleName(Label1->text());
    Picture1->resize(shown);
    const auto centred = [](int whole, double free, int part) {
        return WindowUnits::pixels(((whole - part) * WindowUnits::TwipsPerPixel - free) / 2);
    };
    Picture1->move(centred(width(), m_besideSheet, shown.width()),
                   centred(height(), BelowSheet, shown.height()));
}
