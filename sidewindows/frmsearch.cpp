#include "sidewindows/frmsearch.h"

#include "widgets/controls.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTextLayout>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize WindowSize(940, 500); // logical pixels
constexpr int NameWidth = 230;
constexpr int RowGap = 6;
constexpr int AnswerLines = 3;
constexpr int TableWidth = 190;
constexpr int MarksRole = Qt::UserRole;

constexpr char Examples[] = "For example: acetonitrile, CAS 75-05-8, pKa acetic acid, codons of tryptophan, "
                            "running buffer, alpha, 2.05 CDCl3, m/z 58 43, bp 80";

/// Paints the marked parts of a name in bold.
class MarkDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, RowGap);
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &given, const QModelIndex &index) const override
    {
        QStyleOptionViewItem option = given;
        initStyleOption(&option, index);
        const QString text = std::exchange(option.text, {});
        const QStyle &style = *option.widget->style();
        style.drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
        const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, option.widget) + 1;
        const QRect room = option.rect.adjusted(margin, 0, -margin, 0);
        const bool chosen = option.state & QStyle::State_Selected;

        QFont bold = option.font;
        bold.setBold(true); // the widest that it can get
        const QString fitting = QFontMetrics(bold).elidedText(text, Qt::ElideRight, room.width());
        QTextLayout layout(fitting, option.font);
        layout.setFormats(index.data(MarksRole).value<QList<QTextLayout::FormatRange>>());
        layout.beginLayout();
        QTextLine line = layout.createLine();
        layout.endLayout();
        painter->save();
        painter->setClipRect(room);
        painter->setPen(option.palette.color(chosen ? QPalette::HighlightedText : QPalette::Text));
        layout.draw(painter, QPointF(room.left(), room.top() + (room.height() - line.height()) / 2));
        painter->restore();
    }
};

QVariant inBold(const QList<SearchIndex::Range> &marks)
{
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    QList<QTextLayout::FormatRange> formats;
    for (const SearchIndex::Range &mark : marks)
        formats << QTextLayout::FormatRange{int(mark.begin), int(mark.length), bold};
    return QVariant::fromValue(formats);
}

} // namespace

frmSearch::frmSearch(std::shared_ptr<const SearchEverything> search, const QString &text, QWidget &form1)
    : SideWindow("frmSearch", form1), m_search(std::move(search))
{
    setWindowTitle(u"Search everything"_s);
    txtSearch = Controls::named(new QLineEdit(text, this), u"txtSearch"_s);
    txtSearch->installEventFilter(this);
    QLabel *caption = Controls::label({}, u"&Search:"_s, this);
    caption->setBuddy(txtSearch);
    lblUnderstood = Controls::label(u"lblUnderstood"_s, {}, this);
    lblUnderstood->setWordWrap(true);
    lblAnswer = Controls::label(u"lblAnswer"_s, {}, this);
    lblAnswer->setWordWrap(true);
    lblAnswer->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblAnswer->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblAnswer->setFixedHeight(AnswerLines * fontMetrics().lineSpacing());
    buildList();

    auto *field = new QHBoxLayout;
    field->addWidget(caption);
    field->addWidget(txtSearch);
    auto *column = new QVBoxLayout(this);
    column->addLayout(field);
    column->addWidget(lblUnderstood);
    column->addWidget(lstSearch);
    column->addWidget(lblAnswer);
    resize(WindowSize.boundedTo(Controls::roomFor(*this)));
    connect(txtSearch, &QLineEdit::returnPressed, this, [this] { choose(lstSearch->currentItem()); });
    connect(txtSearch, &QLineEdit::textChanged, this, &frmSearch::showAnswers);
    showAnswers(text);
    txtSearch->setFocus();
}

void frmSearch::buildList()
{
    lstSearch = Controls::named(new QTreeWidget(this), u"lstSearch"_s);
    lstSearch->setAccessibleName(u"Answers"_s);
    lstSearch->setHeaderLabels({u"Name"_s, u"Table"_s, u"Values"_s});
    lstSearch->setRootIsDecorated(false);
    lstSearch->setUniformRowHeights(true);
    lstSearch->setAlternatingRowColors(true);
    lstSearch->setAllColumnsShowFocus(true);
    lstSearch->setItemDelegateForColumn(0, new MarkDelegate(lstSearch));
    lstSearch->header()->resizeSection(0, NameWidth);
    lstSearch->header()->resizeSection(1, TableWidth);
    lstSearch->installEventFilter(this);
    connect(lstSearch, &QTreeWidget::itemActivated, this, &frmSearch::choose);
    connect(lstSearch, &QTreeWidget::currentItemChanged, this, &frmSearch::showWhole);
}

void frmSearch::showAnswers(const QString &text)
{
    const SearchResult result = m_search->find(text);
    m_answers = result.answers;
    lblUnderstood->setText(text.trimmed().isEmpty() ? QString::fromLatin1(Examples) : result.understood);
    txtSearch->setAccessibleDescription(lblUnderstood->text());
    lstSearch->clear();
    QList<QTreeWidgetItem *> items;
    for (const SearchAnswer &answer : m_answers) {
        auto *item = new QTreeWidgetItem({answer.name, answer.table, answer.values});
        item->setData(0, MarksRole, inBold(answer.marks));
        for (int column = 0; column < item->columnCount(); ++column)
            item->setToolTip(column, item->text(column));
        items << item;
    }
    lstSearch->addTopLevelItems(items);
    lstSearch->setCurrentItem(lstSearch->topLevelItem(0)); // Enter in the field takes the best
}

void frmSearch::showWhole(const QTreeWidgetItem *item)
{
    const QString values = item ? item->text(2) : QString();
    lblAnswer->setText(values.isEmpty() ? values : item->text(0) + u": "_s + values);
}

void frmSearch::choose(QTreeWidgetItem *item)
{
    if (!item)
        return;
    const Place place = m_answers[lstSearch->indexOfTopLevelItem(item)].place;
    accept();
    Q_EMIT chosen(place);
}

bool frmSearch::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return SideWindow::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    if (watched == txtSearch) {
        const bool goesDown = key->key() == Qt::Key_Down && !m_answers.isEmpty();
        if (goesDown)
            lstSearch->setFocus();
        return goesDown;
    }
    const bool types = !key->text().isEmpty() && key->text().front().isPrint();
    const bool leavesUpwards = key->key() == Qt::Key_Up && lstSearch->currentIndex().row() == 0;
    if (types || leavesUpwards || key->key() == Qt::Key_Backspace)
        txtSearch->setFocus();
    if (types || key->key() == Qt::Key_Backspace)
        QCoreApplication::sendEvent(txtSearch, event);
    return txtSearch->hasFocus();
}
