#include "widgets/rowlistview.h"

#include "store/rowlist.h"
#include "widgets/listnames.h"
#include "widgets/rowlistdelegate.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool anyWrapped(const QList<ListColumn> &columns)
{
    return std::any_of(columns.begin(), columns.end(),
                       [](const ListColumn &each) { return each.kind == ListColumn::Kind::Wrapped; });
}

// As text and as a table: from the text alone a spreadsheet reads the CAS number 75-05-8 as a day in May.
void copy(const QString &lines)
{
    QString rows;
    for (const QString &line : lines.split(u'\n', Qt::SkipEmptyParts)) {
        const QString cells = line.toHtmlEscaped().replace(u'\t', u"</td><td>"_s);
        rows += u"<tr><td>%1</td></tr>"_s.arg(cells);
    }
    auto *data = new QMimeData;
    data->setText(lines);
    data->setHtml(u"<meta charset=\"utf-8\"><table>%1</table>"_s.arg(rows));
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace

RowListView::RowListView(const QString &name, RowList &list, QList<ListColumn> columns, QWidget *parent)
    : QTreeView(parent), m_list(list), m_model(new RowListModel(list, std::move(columns), this))
{
    // A list of an array gets its name later.
    connect(this, &QObject::objectNameChanged, this,
            [this](const QString &newName) { setAccessibleName(ListNames::of(newName)); });
    setObjectName(name);
    setModel(m_model);
    setAccessibleDescription(list.whyEmpty());
    m_delegate = new RowListDelegate(list, m_model->columns(), this);
    setItemDelegate(m_delegate);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(!anyWrapped(m_model->columns()));
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // the titles above would not scroll along
    setHeaderHidden(true);
    header()->setMinimumSectionSize(8);
    header()->setStretchLastSection(true);
    header()->setSectionResizeMode(QHeaderView::Fixed);
    for (int column = 0; column < m_model->columnCount(); ++column)
        header()->resizeSection(column, m_model->columns()[column].width);

    setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(&list, &RowList::gridLinesChanged, viewport(), qOverload<>(&QWidget::update));
    connect(this, &QTreeView::clicked, this,
            [this](const QModelIndex &index) { Q_EMIT rowClicked(index.row()); });
    connect(this, &QTreeView::doubleClicked, this,
            [this](const QModelIndex &index) { Q_EMIT rowDoubleClicked(index.row()); });
}

void RowListView::showAsRecipes()
{
    m_delegate->setRecipes(true);
    connect(m_model, &RowListModel::modelReset, this, &RowListView::spanHeadings);
    spanHeadings();
    scheduleDelayedItemsLayout(); // headings are lower than other rows
}

void RowListView::spanHeadings()
{
    for (int row = 0; row < m_model->rowCount(); ++row)
        setFirstColumnSpanned(row, {}, m_delegate->isHeading(row));
}

int RowListView::selectedRow() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.constFirst().row();
}

void RowListView::selectRow(int row)
{
    setCurrentIndex(m_model->index(row, 0));
    scrollTo(m_model->index(row, 0));
}

QString RowListView::rowText(int row) const
{
    QStringList cells;
    for (int column = 0; column < m_model->columnCount(); ++column)
        cells << m_model->index(row, column).data().toString();
    return cells.join(u'\t');
}

QString RowListView::cellText() const
{
    return selectedRow() >= 0 ? currentIndex().data().toString() : QString();
}

QList<QStringList> RowListView::cells() const
{
    QStringList titles;
    for (const ListColumn &column : columns())
        titles << column.heading();
    QList<QStringList> lines{titles};
    for (int row = 0; row < m_model->rowCount(); ++row) {
        QStringList &line = lines.emplace_back();
        for (int column = 0; column < columns().size(); ++column)
            line << columns()[column].withoutUnit(m_model->index(row, column).data().toString());
    }
    return lines;
}

void RowListView::copyCell() const
{
    if (selectedRow() >= 0)
        QGuiApplication::clipboard()->setText(cellText());
}

void RowListView::copyRow() const
{
    if (selectedRow() >= 0)
        copy(rowText(selectedRow()));
}

void RowListView::copyTable() const
{
    QStringList titles;
    for (const ListColumn &column : columns())
        titles << column.title;
    QStringList lines(titles.join(u'\t'));
    for (int row = 0; row < m_model->rowCount(); ++row)
        lines << rowText(row);
    copy(lines.join(u'\n') + u'\n');
}

void RowListView::keyboardSearch(const QString &search)
{
    setCurrentIndex(currentIndex().siblingAtColumn(0));
    QTreeView::keyboardSearch(search);
}

void RowListView::moveInRow(int columns)
{
    const QModelIndex next = currentIndex().siblingAtColumn(currentIndex().column() + columns);
    if (next.isValid())
        setCurrentIndex(next);
}

void RowListView::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && selectedRow() >= 0) {
        Q_EMIT rowDoubleClicked(selectedRow());
        return;
    }
    const bool alone = !(event->modifiers() & ~Qt::KeypadModifier);
    if (alone && (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right)) {
        moveInRow(event->key() == Qt::Key_Left ? -1 : 1);
        return;
    }
    if (event->matches(QKeySequence::Copy))
        return; // the base class would copy from the row that is current but not selected
    const int before = selectedRow();
    QTreeView::keyPressEvent(event);
    if (selectedRow() >= 0 && selectedRow() != before)
        Q_EMIT rowClicked(selectedRow());
}

// Opening the context menu chooses the row too.
void RowListView::mousePressEvent(QMouseEvent *event)
{
    const int before = selectedRow();
    QTreeView::mousePressEvent(event);
    if (event->button() == Qt::RightButton && selectedRow() >= 0 && selectedRow() != before)
        Q_EMIT rowClicked(selectedRow());
}

void RowListView::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    constexpr int Margin = 16; // logical pixels
    if (m_model->rowCount() == 0)
        QPainter(viewport())
            .drawText(viewport()->rect().adjusted(Margin, Margin, -Margin, -Margin),
                      Qt::AlignCenter | Qt::TextWordWrap, m_list.whyEmpty());
}

bool RowListView::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QTreeView::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const QModelIndex index = indexAt(help->pos());
    QStringList lines;
    if (index.isValid() && m_delegate->isCut(font(), visualRect(index), index))
        lines << m_delegate->shownText(index);
    if (index.data(RowListModel::GeneralKnowledgeRole).toBool())
        lines << u"General knowledge, no document"_s;
    QToolTip::showText(help->globalPos(), lines.join(u'\n'), viewport(), visualRect(index));
    return true;
}
