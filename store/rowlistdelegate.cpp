#include "store/rowlistdelegate.h"

#include "store/rowlist.h"

#include <QApplication>
#include <QPainter>

namespace {

// How many characters stand before the decimal point of the number that @p text begins with; 0 if it is no
// number.
qsizetype integerLength(const QString &text)
{
    qsizetype length = 0;
    bool digits = false;
    for (const QChar c : text) {
        const bool sign = length == 0 && (c == QLatin1Char('-') || c == QLatin1Char('+'));
        if (!sign && !c.isDigit())
            break;
        digits = digits || c.isDigit();
        ++length;
    }
    return digits ? length : 0;
}

// Where the text begins so that the decimal points of a column stand in one line, a little right of its
// middle.
int numberLeft(const QFontMetrics &metrics, const QString &text, const QRect &cell)
{
    const qsizetype length = integerLength(text);
    const int width = metrics.horizontalAdvance(text);
    const int left =
        length == 0 ? cell.center().x() - width / 2
                    : cell.left() + cell.width() * 11 / 20 - metrics.horizontalAdvance(text.first(length));
    return qMax(cell.left(), qMin(left, cell.right() - width));
}

// Lines break between words only: a name like "2,2,4-Trimethylpentane" stays in one.
QString wrappable(QString text)
{
    constexpr QChar WordJoiner(u'\u2060');
    return text.replace(QLatin1Char('-'), QLatin1Char('-') + QString(WordJoiner));
}

} // namespace

RowListDelegate::RowListDelegate(const RowList &list, const QList<ListColumn> &columns, QObject *parent)
    : QStyledItemDelegate(parent), m_list(list), m_columns(columns)
{}

void RowListDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QString text = std::exchange(item.text, QString());
    const QStyle *style = item.widget ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const bool selected = item.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setPen(item.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    QRect cell = item.rect.adjusted(Padding, 0, -Padding, 0);
    const ListColumn &column = m_columns[index.column()];
    if (column.kind != ListColumn::Kind::Text)
        cell.setWidth(column.width - 2 * Padding); // the last column may be drawn wider than it was made
    if (column.kind == ListColumn::Kind::Number)
        cell.setLeft(numberLeft(item.fontMetrics, text, cell));
    if (column.kind == ListColumn::Kind::Wrapped) {
        painter->drawText(cell, Qt::AlignVCenter | Qt::TextWordWrap, wrappable(text));
    } else {
        painter->drawText(cell, Qt::AlignVCenter | Qt::TextSingleLine,
                          item.fontMetrics.elidedText(text, Qt::ElideRight, cell.width() + 1));
    }
    if (m_list.gridLines()) {
        painter->setPen(item.palette.color(QPalette::Midlight));
        painter->drawLine(item.rect.bottomLeft(), item.rect.bottomRight());
        painter->drawLine(item.rect.topRight(), item.rect.bottomRight());
    }
    painter->restore();
}

QSize RowListDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    constexpr int Leading = 7; // between two rows
    const ListColumn &column = m_columns[index.column()];
    if (column.kind != ListColumn::Kind::Wrapped)
        return {0, option.fontMetrics.height() + Leading};
    const QRect room(0, 0, column.width - 2 * Padding, 1);
    const QString text = wrappable(index.data().toString());
    return {0, option.fontMetrics.boundingRect(room, Qt::TextWordWrap, text).height() + Leading};
}
