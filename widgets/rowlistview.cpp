#include "widgets/rowlistview.h"

#include "store/rowlist.h"
#include "widgets/listnames.h"
#include "widgets/rowlistdelegate.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

namespace {

bool isWrapped(const ListColumn &column)
{
    return column.kind == ListColumn::Kind::Wrapped;
}

bool anyWrapped(const QList<ListColumn> &columns)
{
    return std::any_of(columns.begin(), columns.end(), isWrapped);
}

// As text and as a table: a spreadsheet that gets the text asks how to read it, and takes the CAS number
// 75-05-8 for a day in May.
void copy(const QString &lines)
{
    QString rows;
    for (const QString &line : lines.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QString cells = line.toHtmlEscaped().replace(QLatin1Char('\t'), QStringLiteral("</td><td>"));
        rows += QStringLiteral("<tr><td>%1</td></tr>").arg(cells);
    }
    auto *data = new QMimeData;
    data->setText(lines);
    data->setHtml(QStringLiteral("<meta charset=\"utf-8\"><table>%1</table>").arg(rows));
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace

RowListView::RowListView(const QString &name, RowList &list, QList<ListColumn> columns, QWidget *parent)
    : QTreeView(parent), m_list(list), m_model(new RowListModel(list, std::move(columns), this))
{
    // A list that is one of an array gets its name with its index later.
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
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // the titles above would not move along
    setHeaderHidden(true);
    header()->setMinimumSectionSize(8);
    header()->setStretchLastSection(true);
    header()->setSectionResizeMode(QHeaderView::Fixed);
    for (int column = 0; column < m_model->columnCount(); ++column)
        header()->resizeSection(column, m_model->columns()[column].width);

    buildActions();
    connect(&list, &RowList::gridLinesChanged, viewport(), qOverload<>(&QWidget::update));
    connect(this, &QTreeView::clicked, this,
            [this](const QModelIndex &index) { Q_EMIT rowClicked(index.row()); });
    connect(this, &QTreeView::doubleClicked, this,
            [this](const QModelIndex &index) { Q_EMIT rowDoubleClicked(index.row()); });
}

// Both have their shortcuts while the list has the focus, and make up its context menu.
void RowListView::buildActions()
{
    const auto add = [this](const QString &caption, const QKeySequence &shortcut,
                            void (RowListView::*copy)()) {
        auto *action = new QAction(caption, this);
        action->setShortcut(shortcut);
        action->setShortcutContext(Qt::WidgetShortcut);
        action->setShortcutVisibleInContextMenu(true);
        connect(action, &QAction::triggered, this, copy);
        addAction(action);
    };
    add(QStringLiteral("Copy &row"), QKeySequence(Qt::CTRL | Qt::Key_C), &RowListView::copyRow);
    add(QStringLiteral("Copy &table"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C),
        &RowListView::copyTable);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void RowListView::showAsRecipes()
{
    m_delegate->setRecipes(true);
    connect(m_model, &RowListModel::modelReset, this, &RowListView::spanHeadings);
    spanHeadings();
    scheduleDelayedItemsLayout(); // headings are lower than the rows measured so far
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
    return cells.join(QLatin1Char('\t'));
}

void RowListView::copyRow()
{
    if (selectedRow() >= 0)
        copy(rowText(selectedRow()));
}

void RowListView::copyTable()
{
    QStringList titles;
    for (const ListColumn &column : columns())
        titles << column.title;
    QStringList lines(titles.join(QLatin1Char('\t')));
    for (int row = 0; row < m_model->rowCount(); ++row)
        lines << rowText(row);
    copy(lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
}

void RowListView::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && selectedRow() >= 0) {
        Q_EMIT rowDoubleClicked(selectedRow());
        return;
    }
    const int before = selectedRow();
    QTreeView::keyPressEvent(event);
    if (selectedRow() >= 0 && selectedRow() != before)
        Q_EMIT rowClicked(selectedRow());
}

// A row that the context menu is opened on is chosen like any other.
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
        lines << QStringLiteral("General knowledge, no document");
    QToolTip::showText(help->globalPos(), lines.join(QLatin1Char('\n')), viewport(), visualRect(index));
    return true;
}
