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

using namespace Qt::StringLiterals;

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
    Combo2_3 = Controls::named(new QComboBox(this), u"Combo2(3)"_s);
    Combo2_3->setMinimumContentsLength(15); // of the longest names, "Rutherfordium" and its kind
    Combo2_3->setAccessibleName(u"Name of the element"_s);
    Combo2_3->setModel(new RowListModel(m_store.lists.Combo2[3], {{u"Name"_s, 160}}, Combo2_3));
    TextBoxM6 = Controls::named(new QLineEdit(this), u"TextBoxM6"_s);
    TextBoxM6->setMinimumWidth(60);
    TextBoxM6->setAccessibleName(u"Search text"_s);
    Command11.add(0, new QPushButton(u"Previous"_s, this));
    Command11.add(1, new QPushButton(u"Next"_s, this));
    for (const auto &[index, button] : Command11) // styles add more around short texts
        button->setMinimumWidth(fontMetrics().horizontalAdvance(button->text()) + 16);
    case1 = Controls::named(new QCheckBox(u"Match case"_s, this), u"case1"_s);
    Picture2 = Controls::named(new QToolButton(this), u"Picture2"_s);
    Picture2->setIcon(Icons::named(u"close"_s));
    Picture2->setAutoRaise(true);
    Picture2->setAccessibleName(u"Close search engine"_s);
    ToolTips::setText(*Picture2, u"Close search engine"_s);
    Text1 = Controls::named(new QLineEdit(this), u"Text1"_s);
    Text2 = Controls::named(new QLineEdit(this), u"Text2"_s);
    Text1->hide();
    Text2->hide();
    resetPosition();

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

// A shortcut works while its parent is visible and enabled.
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
    m_panel3.setText(u"           Find :"_s);
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
    resetPosition();
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
    resetPosition();
    if (enableNext)
        Command11[1].setEnabled(!text.isEmpty());
    RowList &hits = m_store.lists.ListView2[6];
    if (text.isEmpty())
        hits.clear();
    else // the number of solvents limits both lists
        Find::gather(*searched.rows, m_store.SolventCount, text,
                     case1->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive, hits);
    sayWhetherFound();
}

void FindBar::resetPosition()
{
    Text1->setText(u"0"_s);
    Text2->setText(u"0"_s);
}

void FindBar::sayWhetherFound()
{
    const QString text = TextBoxM6->text();
    const bool missed = !text.isEmpty() && m_store.lists.ListView2[6].rowCount() == 0;
    StatusLine::show(*this, missed ? u"Nothing found for \"%1\""_s.arg(text) : QString());
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
        searched->view->selectRow(found->row - 1);
        Text2->setText(QString::number(found->row));
        Text1->setText(QString::number(found->hit));
    }
    searched->view->setFocus();
}

// The search text keeps the focus, so that the same key walks on.
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
    // A closed drop-down would pick the first name with the letter.
    if (!opened && !key->text().isEmpty() && key->text().front().isLetter()) {
        Combo2_3->showPopup();
        QCoreApplication::sendEvent(Combo2_3->view(), event);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}
