#include "app/paperreport.h"

#include "core/codepage.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTextTable>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr int PointSize = 8;
constexpr QSize LargestInRow{180, 60}; // pictures of the rows; 96 pixels to an inch

void repeatTitles(const QTextFrame &frame)
{
    for (QTextFrame *child : frame.childFrames()) {
        if (auto *table = qobject_cast<QTextTable *>(child)) {
            QTextTableFormat format = table->format();
            format.setHeaderRowCount(1);
            table->setFormat(format);
        }
        repeatTitles(*child);
    }
}

} // namespace

PaperReport::PaperReport(const QByteArray &page)
{
    // Browsers treat column widths as a hint. This layout obeys them and breaks words.
    static const QRegularExpression columnWidth(uR"((?<=<td) width="\d+%")"_s);
    setDefaultFont(QFont(QGuiApplication::font().family(), PointSize));
    setHtml(CodePage::decode(page).remove(columnWidth));
    repeatTitles(*rootFrame());
}

QPageLayout PaperReport::pageLayout()
{
    // The document has margins of 2 cm of its own, with the number of the page.
    return {QPageSize(QPageSize::A4), QPageLayout::Landscape, {}};
}

QByteArray PaperReport::pdf(const QByteArray &page)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageLayout(pageLayout());
    PaperReport(page).print(&writer);
    return bytes;
}

// The addresses have backslashes, for browsers.
QVariant PaperReport::loadResource(int type, const QUrl &name)
{
    const QString path = QUrl::fromPercentEncoding(name.path().toUtf8()).replace(u'\\', u'/');
    QImage picture(path);
    if (type != ImageResource || picture.isNull())
        return QTextDocument::loadResource(type, name);
    const bool isChart = path.contains("/Data/img/"_L1);
    if (!isChart && (picture.width() > LargestInRow.width() || picture.height() > LargestInRow.height()))
        picture = picture.scaled(LargestInRow, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return picture;
}
