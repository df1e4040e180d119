#pragma once

#include "widgets/controlarray.h"

#include <QFrame>
#include <QLabel>
#include <QList>

class RowListView;

/// The frame above a list with the titles of its columns, a label each.
class TitleFrame final : public QFrame
{
    Q_OBJECT

public:
    /// For titles in two lines or in one, logical pixels.
    static constexpr int Height = 38;
    static constexpr int OneLine = 22;

    TitleFrame(const QString &name, QWidget *parent, int height = Height);

    /// Labels for the columns of @p list from the first on, added to @p labels under @p indices. The frame
    /// moves right above the list and takes its width.
    void addTitles(const RowListView &list, ControlArray<QLabel> &labels, const QList<int> &indices);

    /// One more label, over @p span columns of @p list from @p column on.
    void addTitle(const RowListView &list, int column, ControlArray<QLabel> &labels, int index, int span = 1);
};
