#pragma once

#include "widgets/controlarray.h"

#include <QFrame>
#include <QLabel>
#include <QList>

class RowListView;

/// The frame above a list that holds the titles of its columns, each a label of its own, in line with the
/// columns.
class TitleFrame final : public QFrame
{
    Q_OBJECT

public:
    /// Room for titles in two lines or in one, logical pixels.
    static constexpr int Height = 38;
    static constexpr int OneLine = 22;

    /// @p name is the frame's name in the system, "frmc".
    TitleFrame(const QString &name, QWidget *parent, int height = Height);

    /// Labels for the columns of @p list, from its first column on, named @p labels with the given indices.
    /// The frame takes the list's width and lies right above it.
    void addTitles(const RowListView &list, ControlArray<QLabel> &labels, const QList<int> &indices);

    /// One more label, over column @p column of @p list and, as @p span tells, over those that follow it.
    void addTitle(const RowListView &list, int column, ControlArray<QLabel> &labels, int index, int span = 1);
};
