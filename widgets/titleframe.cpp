#include "widgets/titleframe.h"

#include "widgets/rowlistdelegate.h"
#include "widgets/rowlistview.h"

#include <QPainter>
#include <QStyle>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

/// A title too long for one line breaks before its unit, "Molar mass" over "(g/mol)"; over numbers it does
/// wherever there are two lines. If it still does not fit, it is set smaller.
class TitleLabel final : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *) override
    {
        constexpr int Apart = 4; // from its neighbours, if there is room
        const bool overNumbers = alignment() & Qt::AlignHCenter;
        QRect room = overNumbers ? rect().adjusted(Apart, 0, -Apart, 0) : rect();
        QString shown = text();
        const bool twoLines = overNumbers && height() >= 2 * fontMetrics().height();
        if (twoLines || fontMetrics().horizontalAdvance(shown) > room.width())
            shown.replace(u" ("_s, u"\n("_s);
        QFont fitting = font();
        if (!fits(shown, room, fitting))
            room = rect();
        while (fitting.pointSizeF() > 1 && !fits(shown, room, fitting))
            fitting.setPointSizeF(fitting.pointSizeF() - 0.5);
        QPainter painter(this);
        painter.setFont(fitting);
        style()->drawItemText(&painter, room, flags(), palette(), isEnabled(), shown, foregroundRole());
    }

private:
    int flags() const { return int(alignment()) | Qt::TextWordWrap; }

    bool fits(const QString &shown, const QRect &room, const QFont &font) const
    {
        return room.contains(QFontMetrics(font).boundingRect(room, flags(), shown));
    }
};

} // namespace

TitleFrame::TitleFrame(const QString &name, QWidget *parent, int height) : QFrame(parent)
{
    resize(width(), height);
    setObjectName(name);
    setFrameShape(NoFrame);
    setAutoFillBackground(true); // frames cover each other
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
