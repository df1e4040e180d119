#include "search/findbar.h"

#include "core/desktop.h"
#include "store/datastore.h"
#include "widgets/icons.h"
#include "widgets/rowlistmodel.h"
#include "widgets/rowlistview.h"

#include <QHBoxLayout>
#include <QKeyEvent>

FindBar::FindBar(DataStore &store, Desktop &desktop, QLabel &panel3, QWidget *parent)
    : QWidget(parent), m_store(store), m_desktop(desktop), m_panel3(panel3)
{
    buildControls();
    connectControls();
    ResetSearchPanel();
}

void FindBar::buildControls()
{
    Picture2 = Controls::named(new QToolButton(this), QStringLiteral("Picture2"));
    Picture2->setIcon(Icons::named(QStringLiteral("close")));
    Picture2->setAutoRaise(true);
    Picture2->setAccessibleName(tr("Close search engine"));
    TextBoxM6 = Controls::named(new QLineEdit(this), QStringLiteral("TextBoxM6"));
    TextBoxM6->setMinimumWidth(180);
    TextBoxM6->setAccessibleName(tr("Search text"));
    case1 = Controls::named(new QCheckBox(QStringLiteral("Match case"), this), QStringLiteral("case1"));
    Command11.add(0, new QPushButton(QStringLiteral("Previous"), this));
    Command11.add(1, new QPushButton(QStringLiteral("Next"), this));
    Combo2_3 = Controls::named(new QComboBox(this), QStringLiteral("Combo2(3)"));
    Combo2_3->setMinimumContentsLength(15); // of the longest names, "Rutherfordium" and its kind
    Combo2_3->setAccessibleName(tr("Name of the element"));
    Combo2_3->setModel(new RowListModel(m_store.lists.Combo2[3], {{tr("Name"), 160}}, Combo2_3));
    Text1 = Controls::named(new QLineEdit(QStringLiteral("0"), this), QStringLiteral("Text1"));
    Text2 = Controls::named(new QLineEdit(QStringLiteral("0"), this), QStringLiteral("Text2"));
    Text1->hide();
    Text2->hide();

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    for (QWidget *control :
         QList<QWidget *>{Combo2_3, TextBoxM6, &Command11[0], &Command11[1], case1, Picture2})
        row->addWidget(control);
}

void FindBar::connectControls()
{
    connect(Picture2, &QToolButton::clicked, this, &FindBar::closeByUser);
    connect(TextBoxM6, &QLineEdit::textChanged, this,
            [this] { atEdge(m_desktop, [this] { searchTextChanged(); }); });
    connect(case1, &QCheckBox::clicked, this, [this] { atEdge(m_desktop, [this] { caseClicked(); }); });
    Command11.connectEach(&QPushButton::clicked, this, [this](int index) {
        atEdge(m_desktop, [this, index] { walk(Find::Direction(index)); });
    });
    TextBoxM6->installEventFilter(this);
}

void FindBar::setSearchedLists(RowListView *ListView1, RowListView *ListView3_26)
{
    m_ListView1 = ListView1;
    m_ListView3_26 = ListView3_26;
}

void FindBar::open(bool elementsOnShow)
{
    Picture2->show();
    m_panel3.setText(QStringLiteral("           Find :"));
    if (elementsOnShow) {
        Combo2_3->show();
        Combo2_3->setFocus();
        return;
    }
    TextBoxM6->show();
    TextBoxM6->setFocus();
    Command11[0].show();
    Command11[1].show();
    case1->show();
}

void FindBar::closeByUser()
{
    ResetSearchPanel();
    Q_EMIT closedByUser();
}

void FindBar::ResetSearchPanel()
{
    Command11[1].hide();
    Command11[0].hide();
    TextBoxM6->clear();
    TextBoxM6->hide();
    case1->hide();
    m_store.lists.ListView2[6].clear();
    Combo2_3->hide();
    m_panel3.clear();
    Picture2->hide();
    Combo2_3->setCurrentIndex(-1);
}

void FindBar::ClearFindText()
{
    TextBoxM6->clear();
    SearchHit = 1;
    SearchRow = 1;
    Text1->setText(QStringLiteral("0"));
    Text2->setText(QStringLiteral("0"));
    case1->setChecked(false);
}

std::optional<FindBar::Searched> FindBar::searchedList() const
{
    if (m_ListView1 && Controls::isShown(*m_ListView1))
        return Searched{m_ListView1, &m_store.lists.ListView1, true};
    if (m_ListView3_26 && Controls::isShown(*m_ListView3_26))
        return Searched{m_ListView3_26, &m_store.lists.ListView3[26], false};
    return {};
}

void FindBar::searchTextChanged()
{
    Command11[0].setEnabled(false);
    if (const auto searched = searchedList())
        gather(*searched, true);
}

// On the list of mass spectra, ticking leaves Next as it is.
void FindBar::caseClicked()
{
    if (const auto searched = searchedList())
        gather(*searched, searched->enablesNext);
}

void FindBar::gather(const Searched &searched, bool enableNext)
{
    const QString text = TextBoxM6->text();
    SearchHit = 1;
    SearchRow = 1;
    Text1->setText(QStringLiteral("0"));
    Text2->setText(QStringLiteral("0"));
    if (enableNext)
        Command11[1].setEnabled(!text.isEmpty());
    RowList &hits = m_store.lists.ListView2[6];
    if (text.isEmpty())
        return hits.clear();
    // Both lists are searched as far as there are solvents.
    Find::gather(*searched.rows, m_store.SolventCount, text,
                 case1->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive, hits);
}

void FindBar::walk(Find::Direction direction)
{
    const RowList &hits = m_store.lists.ListView2[6];
    const auto searched = searchedList();
    if (hits.rowCount() == 0 || !searched)
        return m_desktop.beep();
    Command11[0].setEnabled(true);
    const Find::Position current{Text1->text().toInt(), Text2->text().toInt()};
    if (const auto found = Find::walk(*searched->rows, hits, current, direction)) {
        SearchHit = found->hit;
        SearchRow = found->row;
        searched->view->selectRow(SearchRow - 1);
        Text2->setText(QString::number(SearchRow));
        Text1->setText(QString::number(SearchHit));
    }
    searched->view->setFocus();
}

// From the search text one walks on with the same key, so it keeps the focus.
void FindBar::walkFromText(Find::Direction direction)
{
    Command11[int(direction)].click();
    TextBoxM6->setFocus();
}

bool FindBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        walkFromText(key->modifiers() & Qt::ShiftModifier ? Find::Direction::Previous
                                                          : Find::Direction::Next);
        return true;
    case Qt::Key_Escape:
        closeByUser();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}
