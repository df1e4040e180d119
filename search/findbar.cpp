#include "search/findbar.h"

#include "core/desktop.h"
#include "store/datastore.h"
#include "widgets/icons.h"
#include "widgets/rowlistmodel.h"
#include "widgets/rowlistview.h"
#include "widgets/statusline.h"
#include "widgets/tooltips.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QToolButton>

FindBar::FindBar(DataStore &store, Desktop &desktop, QLabel &panel3, QWidget *parent)
    : QWidget(parent), m_store(store), m_desktop(desktop), m_panel3(panel3)
{
    buildControls();
    connectControls();
    ResetSearchPanel();
}

void FindBar::buildControls()
{
    // In the order of Tab.
    Combo2_3 = Controls::named(new QComboBox(this), QStringLiteral("Combo2(3)"));
    Combo2_3->setMinimumContentsLength(15); // of the longest names, "Rutherfordium" and its kind
    Combo2_3->setAccessibleName(QStringLiteral("Name of the element"));
    Combo2_3->setModel(new RowListModel(m_store.lists.Combo2[3], {{QStringLiteral("Name"), 160}}, Combo2_3));
    TextBoxM6 = Controls::named(new QLineEdit(this), QStringLiteral("TextBoxM6"));
    TextBoxM6->setMinimumWidth(60);
    TextBoxM6->setAccessibleName(QStringLiteral("Search text"));
    Command11.add(0, new QPushButton(QStringLiteral("Previous"), this));
    Command11.add(1, new QPushButton(QStringLiteral("Next"), this));
    for (const auto &[index, button] : Command11) // styles ask for more around short texts
        button->setMinimumWidth(fontMetrics().horizontalAdvance(button->text()) + 16);
    case1 = Controls::named(new QCheckBox(QStringLiteral("Match case"), this), QStringLiteral("case1"));
    Picture2 = Controls::named(new QToolButton(this), QStringLiteral("Picture2"));
    Picture2->setIcon(Icons::named(QStringLiteral("close")));
    Picture2->setAutoRaise(true);
    Picture2->setAccessibleName(QStringLiteral("Close search engine"));
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
            [this] { endOnError(m_desktop, [this] { searchTextChanged(); }); });
    connect(case1, &QCheckBox::clicked, this, [this] { endOnError(m_desktop, [this] { caseClicked(); }); });
    Command11.connectEach(&QPushButton::clicked, this, [this](int index) {
        endOnError(m_desktop, [this, index] { walk(Find::Direction(index)); });
    });
    connect(Combo2_3, &QComboBox::activated, this, [this] {
        if (isPickInUse())
            Q_EMIT namePicked(Combo2_3->currentText());
    });
    addShortcuts();
}

// Each is on while its parent can be seen and used.
void FindBar::addShortcuts()
{
    const auto add = [](const QKeySequence &key, QWidget *parent, Qt::ShortcutContext context, auto act) {
        new QShortcut(key, parent, act, context);
    };
    const auto next = [this] { walkByKey(Find::Direction::Next); };
    const auto previous = [this] { walkByKey(Find::Direction::Previous); };
    add(Qt::Key_F3, &Command11[1], Qt::WindowShortcut, next);
    add(Qt::SHIFT | Qt::Key_F3, &Command11[0], Qt::WindowShortcut, previous);
    add(Qt::Key_Escape, Picture2, Qt::WindowShortcut, [this] { closeByUser(); });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        add(key, TextBoxM6, Qt::WidgetShortcut, next);
        add(Qt::SHIFT | key, TextBoxM6, Qt::WidgetShortcut, previous);
    }
}

QSize FindBar::sizeHint() const
{
    constexpr int WholeName = 180; // logical pixels of the search text
    return QWidget::sizeHint() + QSize(isSearching() ? WholeName - TextBoxM6->sizeHint().width() : 0, 0);
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
        Combo2_3->installEventFilter(this);
        Combo2_3->view()->installEventFilter(this);
        return Combo2_3->showPopup();
    }
    TextBoxM6->show();
    TextBoxM6->setFocus();
    TextBoxM6->selectAll();
    Command11[0].show();
    Command11[1].show();
    case1->show();
}

void FindBar::closeByUser()
{
    const auto searched = isSearching() ? searchedList() : std::nullopt;
    ResetSearchPanel();
    if (searched)
        searched->view->setFocus();
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
    StatusLine::show(*this, {});
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

bool FindBar::isSearching() const
{
    return Controls::isShown(*TextBoxM6);
}

bool FindBar::isPickInUse() const
{
    return Controls::isShown(*Combo2_3) && Combo2_3->currentIndex() != -1;
}

void FindBar::refreshToolTip(const OptionSlots &slots)
{
    ToolTips::refresh(slots, *Picture2, QStringLiteral("Close search engine"));
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
        hits.clear();
    else // both lists are searched as far as there are solvents
        Find::gather(*searched.rows, m_store.SolventCount, text,
                     case1->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive, hits);
    sayWhetherFound();
}

void FindBar::sayWhetherFound()
{
    const QString text = TextBoxM6->text();
    const bool missed = !text.isEmpty() && m_store.lists.ListView2[6].rowCount() == 0;
    StatusLine::show(*this, missed ? QStringLiteral("Nothing found for \"%1\"").arg(text) : QString());
}

void FindBar::walk(Find::Direction direction)
{
    const RowList &hits = m_store.lists.ListView2[6];
    const auto searched = searchedList();
    if (hits.rowCount() == 0 || !searched) {
        sayWhetherFound();
        return m_desktop.beep();
    }
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
void FindBar::walkByKey(Find::Direction direction)
{
    const bool fromText = TextBoxM6->hasFocus();
    Command11[int(direction)].click();
    if (fromText)
        TextBoxM6->setFocus();
}

bool FindBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool opened = watched == Combo2_3->view();
    if (opened && key->key() == Qt::Key_Escape) {
        Combo2_3->hidePopup();
        closeByUser();
        return true;
    }
    // By itself a closed drop-down picks the first name with the letter.
    if (!opened && !key->text().isEmpty() && key->text().front().isLetter()) {
        Combo2_3->showPopup();
        QCoreApplication::sendEvent(Combo2_3->view(), event);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}
