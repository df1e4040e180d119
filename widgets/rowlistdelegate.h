#pragma once

#include "widgets/rowlistmodel.h"

#include <QHash>
#include <QStyledItemDelegate>

/// Draws the cells of a list: grid lines if the list has them, numbers aligned at the decimal point, a small
/// lozenge after the name of a row that is general knowledge alone.
class RowListDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Left and right of a cell's text, logical pixels.
    static constexpr int Padding = 6;

    RowListDelegate(const RowList &list, const QList<ListColumn> &columns, QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    /// Draws rows with a text in the first column only as headings, and indents the others.
    void setRecipes(bool on) { m_recipes = on; }

    bool isHeading(int row) const;

    /// The cell's text before it is shortened, without the sign of general knowledge.
    QString shownText(const QModelIndex &index) const;

    /// Whether the text is too long for @p cell and is drawn shortened.
    bool isCut(QFont font, const QRect &cell, const QModelIndex &index) const;

private:
    QString signOf(const QModelIndex &index) const;
    int leftInset(const QModelIndex &index) const;
    QRect room(const QRect &cell, const QModelIndex &index) const;
    int numberLeft(const QFontMetrics &metrics, const QString &text, const QRect &cell,
                   const QModelIndex &index) const;
    int decimalPoint(const QFontMetrics &metrics, int room, const QModelIndex &index) const;
    void drawText(QPainter &painter, const QRect &rect, const QModelIndex &index) const;

    bool m_recipes = false;
    const RowList &m_list;
    const QList<ListColumn> m_columns;
    mutable QHash<QPair<int, int>, int>
        m_points; ///< decimal points by column and font size; scrolling lags without
};
