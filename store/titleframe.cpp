#include "store/titleframe.h"

#include "store/rowlistdelegate.h"
#include "store/rowlistview.h"

TitleFrame::TitleFrame(const QString &name, QWidget *parent) : QFrame(parent)
{
    setObjectName(name);
    setFrameShape(NoFrame);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
}

void TitleFrame::addTitles(const RowListView &list, ControlArray<QLabel> &labels, const QList<int> &indices)
{
    setGeometry(list.x(), list.y() - Height, list.width(), Height);
    for (int column = 0; column < indices.size(); ++column)
        addTitle(list, column, labels, indices[column]);
}

void TitleFrame::addTitle(const RowListView &list, int column, ControlArray<QLabel> &labels, int index)
{
    const ListColumn &titled = list.columns()[column];
    int left = list.frameWidth();
    for (int before = 0; before < column; ++before)
        left += list.columns()[before].width;

    const bool last = column + 1 == list.columns().size();
    const int width = last ? qMax(titled.width, list.width() - left) : titled.width;
    auto *label = new QLabel(titled.title, this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setGeometry(left + RowListDelegate::Padding, 0, width - 2 * RowListDelegate::Padding, Height);
    const bool number = titled.kind == ListColumn::Kind::Number;
    label->setAlignment((number ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignBottom);
    labels.add(index, label);
}
