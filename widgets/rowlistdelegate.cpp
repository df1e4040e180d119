#include "widgets/rowlistdelegate.h"

#include "store/rowlist.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

// Characters before the decimal point of the number that @p text begins with, such as "<1", "~2.3" or
// "36,000". 0 if it is no number.
qsizetype integerLength(const QString &text)
{
    qsizetype length = 0;
    bool digits = false;
    for (const QChar c : text) {
        const bool sign = !digits && QStringView(u"+-<>~").contains(c);
        const bool group = digits && c == u',';
        if (!sign && !group && !c.isDigit())
            break;
        digits = digits || c.isDigit();
        ++length;
    }
    return digits ? length : 0;
}

// Lines break between words only, which keeps "2,2,4-Trimethylpentane" whole. A word wider than the line also
// breaks after hyphens and brackets, a formula before the symbol of an element.
QString wrappable(const QString &text, const QFontMetrics &metrics, int width)
{
    constexpr QChar WordJoiner(u'\u2060');
    constexpr QChar BreakHere(u'\u200B');
    QStringList words = text.split(u' ');
    for (QString &word : words) {
        const bool fits = metrics.horizontalAdvance(word) <= width;
        word.replace(u'-', u'-' + QString(fits ? WordJoiner : BreakHere));
        if (fits)
            continue;
        word.replace(u')', u')' + QString(BreakHere));
        for (qsizetype place = word.size() - 1; place > 0; --place) {
            if (word[place].isUpper() && word[place - 1].isDigit())
                word.insert(place, BreakHere);
        }
    }
    return words.join(u' ');
}

} // namespace

RowListDelegate::RowListDelegate(const RowList &list, const QList<ListColumn> &columns, QObject *parent)
    : QStyledItemDelegate(parent), m_list(list), m_columns(columns)
{
    connect(&list, &RowList::reset, this, [this] { m_points.clear(); });
}

QString RowListDelegate::shownText(const QModelIndex &index) const
{
    return m_columns[index.column()].shown(index.data().toString());
}

// On the screen alone: no copy, report or search has it.
QString RowListDelegate::signOf(const QModelIndex &index) const
{
    const bool general = index.data(RowListModel::GeneralKnowledgeRole).toBool();
    return general ? u"\u00A0\u25CA"_s : QString(); // a lozenge that stays on the line
}

bool RowListDelegate::isHeading(int row) const
{
    if (!m_recipes || m_list.cell(row, 0).isEmpty())
        return false;
    for (int number = 1; number < m_columns.size(); ++number) {
        if (!m_list.cell(row, number).isEmpty())
            return false;
    }
    return true;
}

int RowListDelegate::leftInset(const QModelIndex &index) const
{
    constexpr int Indent = 14;
    return Padding + (m_recipes && index.column() == 0 && !isHeading(index.row()) ? Indent : 0);
}

void RowListDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    item.text.clear();
    const QStyle *style = item.widget ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const bool heading = isHeading(index.row());
    item.font.setBold(heading);
    const bool selected = item.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setFont(item.font);
    painter->setPen(item.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    drawText(*painter, item.rect, index);
    if (m_list.gridLines()) {
        painter->setPen(item.palette.color(QPalette::Midlight));
        painter->drawLine(item.rect.bottomLeft(), item.rect.bottomRight());
        painter->drawLine(item.rect.topRight(), item.rect.bottomRight());
    }
    // The cell that is copied. In the first column it needs no mark.
    const auto *view = qobject_cast<const QAbstractItemView *>(item.widget);
    if (selected && index.column() > 0 && view && view->hasFocus() && view->currentIndex() == index) {
        painter->setPen(item.palette.color(QPalette::HighlightedText));
        painter->drawRect(item.rect.adjusted(1, 1, -2, -2));
    }
    painter->restore();
}

// The last column may be wider than its ListColumn, and a heading spans all columns.
QRect RowListDelegate::room(const QRect &cell, const QModelIndex &index) const
{
    const ListColumn &column = m_columns[index.column()];
    const int left = leftInset(index);
    QRect room = cell.adjusted(left, 0, -Padding, 0);
    if (column.kind == ListColumn::Kind::Text || isHeading(index.row()))
        return room;
    room.setWidth(column.width - left - Padding);
    // A number close to the grid lines is still readable; one cut short or out of line is not.
    return column.kind == ListColumn::Kind::Number ? room.adjusted(-Padding, 0, Padding, 0) : room;
}

bool RowListDelegate::isCut(QFont font, const QRect &cell, const QModelIndex &index) const
{
    const bool heading = isHeading(index.row());
    if (m_columns[index.column()].kind == ListColumn::Kind::Wrapped && !heading)
        return false;
    font.setBold(heading);
    // One pixel of the padding is better than three dots.
    return QFontMetricsF(font).horizontalAdvance(shownText(index) + signOf(index)) >
           room(cell, index).width() + 1;
}

void RowListDelegate::drawText(QPainter &painter, const QRect &rect, const QModelIndex &index) const
{
    const QString sign = signOf(index);
    const QString text = shownText(index) + sign;
    const ListColumn &column = m_columns[index.column()];
    const QFontMetrics metrics = painter.fontMetrics();
    QRect cell = room(rect, index);
    if (column.kind == ListColumn::Kind::Wrapped && !isHeading(index.row())) {
        painter.drawText(cell, Qt::AlignVCenter | Qt::TextWordWrap, wrappable(text, metrics, cell.width()));
        return;
    }
    const bool cut = isCut(painter.font(), rect, index);
    if (column.kind == ListColumn::Kind::Number)
        cell.setLeft(numberLeft(metrics, text, cell, index));
    const int forText = cell.width() - metrics.horizontalAdvance(sign);
    painter.drawText(cell, Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip,
                     cut ? metrics.elidedText(text.chopped(sign.size()), Qt::ElideRight, forText) + sign
                         : text);
}

// The left edge of the text, so that the decimal points of a column line up. Texts are centred.
int RowListDelegate::numberLeft(const QFontMetrics &metrics, const QString &text, const QRect &cell,
                                const QModelIndex &index) const
{
    const qsizetype length = integerLength(text);
    const int width = metrics.horizontalAdvance(text);
    const int left = length == 0 ? cell.center().x() - width / 2
                                 : cell.left() + decimalPoint(metrics, cell.width(), index) -
                                       metrics.horizontalAdvance(text.first(length));
    return qMax(cell.left(), qMin(left, cell.right() - width));
}

// From the left of the cells, logical pixels. The longest part before the point and the longest after it are
// centred together.
int RowListDelegate::decimalPoint(const QFontMetrics &metrics, int room, const QModelIndex &index) const
{
    const QPair<int, int> key(index.column(), metrics.horizontalAdvance(u'0'));
    const auto known = m_points.constFind(key);
    if (known != m_points.constEnd())
        return *known;
    int before = 0;
    int after = 0;
    for (int row = 0; row < m_list.rowCount(); ++row) {
        const QString text = shownText(index.siblingAtRow(row));
        const qsizetype length = integerLength(text);
        if (length == 0)
            continue;
        before = qMax(before, metrics.horizontalAdvance(text.first(length)));
        after = qMax(after, metrics.horizontalAdvance(text.sliced(length)));
    }
    return m_points[key] = before + (room - before - after) / 2;
}

QSize RowListDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    constexpr int Leading = 7; // between two rows
    const ListColumn &column = m_columns[index.column()];
    const QFontMetrics &metrics = option.fontMetrics;
    if (column.kind != ListColumn::Kind::Wrapped || isHeading(index.row()))
        return {0, metrics.height() + Leading};
    const int width = column.width - leftInset(index) - Padding;
    const QString text = wrappable(shownText(index) + signOf(index), metrics, width);
    return {0, metrics.boundingRect(QRect(0, 0, width, 1), Qt::TextWordWrap, text).height() + Leading};
}
