#include "store/titleframe.h"

#include "store/rowlistdelegate.h"
#include "store/rowlistview.h"

#include <QPainter>
#include <QStyle>
#include <numeric>

namespace {

/// A title that does not fit in one line breaks before its unit, "Molar mass" over "(g/mol)", and nowhere
/// inside it. One that has no room even so is set smaller.
class TitleLabel final : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QString shown = text();
        if (fontMetrics().horizontalAdvance(shown) > width())
            shown.replace(QLatin1StringView(" ("), QLatin1StringView("\n("));
        const int flags = int(alignment()) | Qt::TextWordWrap;
        QFont fitting = font();
        while (fitting.pointSizeF() > 1 &&
               !rect().contains(QFontMetrics(fitting).boundingRect(rect(), flags, shown)))
            fitting.setPointSizeF(fitting.pointSizeF() - 0.5);
        QPainter painter(this);
        painter.setFont(fitting);
        style()->drawItemText(&painter, rect(), flags, palette(), isEnabled(), shown, foregroundRole());
    }
};

} // namespace

TitleFrame::TitleFrame(const QString &name, QWidget *parent, int height) : QFrame(parent)
{
    resize(width(), height);
    setObjectName(name);
    setFrameShape(NoFrame);
    setAutoFillBackground(true); // frames lie one over another
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
}

void TitleFrame::addTitles(const RowListView &list, ControlArray<QLabel> &labels, const QList<int> &indices)
{
    setGeometry(list.x(), list.y() - height(), list.width(), height());
    for (int column = 0; column < indices.size(); ++column)
        addTitle(list, column, labels, indices[column]);
}

void TitleFrame::addTitle(const RowListView &list, int column, ControlArray<QLabel> &labels, int index,
                          int span)
{
    const QList<ListColumn> &columns = list.columns();
    const auto widthOf = [&columns](int first, int count) {
        return std::accumulate(columns.begin() + first, columns.begin() + first + count, 0,
                               [](int sum, const ListColumn &each) { return sum + each.width; });
    };
    const int left = list.frameWidth() + widthOf(0, column);
    const ListColumn &titled = columns[column];
    const bool centred = titled.kind == ListColumn::Kind::Number && span == 1;
    const bool last = column + span == columns.size();
    const int width = last && !centred ? list.width() - left : widthOf(column, span);

    auto *label = new TitleLabel(titled.title, this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    const int padding = centred ? 1 : RowListDelegate::Padding;
    label->setGeometry(left + padding, 0, width - 2 * padding, height());
    label->setAlignment((centred ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignBottom);
    labels.add(index, label);
}
