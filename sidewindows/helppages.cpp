#include "sidewindows/helppages.h"

#include "sidewindows/helpbook.h"
#include "widgets/controls.h"
#include "widgets/icons.h"
#include "widgets/readable.h"

#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize WindowSize(980, 680); // logical pixels
constexpr int LeftWidth = 290;
constexpr int Page = Qt::UserRole; ///< of an item: its page

/// In the colours of the desktop. The pages' own style sheet assumes a white page; a browser of rich text
/// ignores it, for its link names no type.
QString pageStyle(const QPalette &palette)
{
    return u"a { color: %1 } th { background: %2; text-align: left } td, th { border: 1px solid gray } "
           "table { border-collapse: collapse; margin-top: 6px; margin-bottom: 6px }"_s.arg(
               palette.color(QPalette::Link).name(), palette.color(QPalette::AlternateBase).name());
}

void showTopics(QListWidget &list, const QList<HelpBook::Topic> &topics)
{
    list.clear();
    for (const HelpBook::Topic &topic : topics)
        (new QListWidgetItem(topic.title, &list))->setData(Page, topic.page);
}

/// A field above the list of what it finds.
QWidget *column(QWidget *field, QWidget *found)
{
    auto *page = new QWidget;
    auto *rows = new QVBoxLayout(page);
    rows->addWidget(field);
    rows->addWidget(found);
    return page;
}

QLineEdit *makeField(const QString &name, const QString &hint)
{
    auto *field = Controls::named(new QLineEdit, name);
    field->setPlaceholderText(hint);
    field->setAccessibleName(hint);
    field->setClearButtonEnabled(true);
    return field;
}

} // namespace

HelpPages::HelpPages() : QWidget(nullptr, Qt::Window)
{
    setObjectName(u"frmHelpPages"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(u"Alembra help"_s);

    auto *split = new QSplitter(this);
    QWidget *page = buildPage();
    auto *tabs = Controls::named(new QTabWidget, u"tabHelp"_s);
    tabs->addTab(buildContents(), u"&Contents"_s);
    tabs->addTab(buildIndex(), u"&Index"_s);
    tabs->addTab(buildSearch(), u"&Search"_s);
    split->addWidget(tabs);
    split->addWidget(page);
    split->setStretchFactor(1, 1);
    split->setChildrenCollapsible(false);
    split->setSizes({LeftWidth, WindowSize.width() - LeftWidth});
    auto *whole = new QVBoxLayout(this);
    whole->addWidget(split);

    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, tabs, [this, tabs] {
        tabs->setCurrentIndex(tabs->count() - 1);
        m_words->setFocus();
    });
    connect(m_page, &QTextBrowser::sourceChanged, this, &HelpPages::markInContents);
    takeColours();
    open(HelpBook::contents().constFirst().page);
    resize(WindowSize.boundedTo(Controls::roomFor(*this)));
    m_contents->setFocus();
}

QWidget *HelpPages::buildContents()
{
    m_contents = Controls::named(new QTreeWidget, u"treHelpContents"_s);
    m_contents->setHeaderHidden(true);
    m_contents->setAccessibleName(u"Contents of the help"_s);
    QList<QTreeWidgetItem *> parents{m_contents->invisibleRootItem()};
    for (const HelpBook::Topic &topic : HelpBook::contents()) {
        parents.resize(topic.level + 1);
        auto *item = new QTreeWidgetItem(parents.constLast(), {topic.title});
        item->setData(0, Page, topic.page);
        parents << item;
    }
    m_contents->expandAll();
    connect(m_contents, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem *item) { open(item->data(0, Page).toString()); });
    return m_contents;
}

QWidget *HelpPages::buildIndex()
{
    auto *field = makeField(u"txtHelpIndex"_s, u"Keyword"_s);
    QListWidget *list = makeList(u"lstHelpIndex"_s, u"Keywords of the help"_s, *field);
    const auto fill = [list](const QString &part) {
        QList<HelpBook::Topic> topics = HelpBook::index();
        topics.removeIf([&](const HelpBook::Topic &topic) {
            return !topic.title.contains(part.trimmed(), Qt::CaseInsensitive);
        });
        showTopics(*list, topics);
    };
    connect(field, &QLineEdit::textChanged, list, fill);
    fill({});
    return column(field, list);
}

QWidget *HelpPages::buildSearch()
{
    m_words = makeField(u"txtHelpSearch"_s, u"Words to look for"_s);
    QListWidget *list = makeList(u"lstHelpHits"_s, u"Pages with these words"_s, *m_words);
    connect(m_words, &QLineEdit::textChanged, list, [list](const QString &words) {
        showTopics(*list, HelpBook::search(words));
        if (list->count() == 0 && !words.trimmed().isEmpty()) {
            auto *none = new QListWidgetItem(u"No page has these words."_s, list);
            none->setFlags(Qt::NoItemFlags);
        }
    });
    connect(list, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem *item) {
        if (item)
            m_page->find(m_words->text().section(u' ', 0, 0, QString::SectionSkipEmpty));
    });
    return column(m_words, list);
}

QListWidget *HelpPages::makeList(const QString &name, const QString &accessibleName, QLineEdit &field)
{
    auto *list = Controls::named(new QListWidget, name);
    list->setAccessibleName(accessibleName);
    connect(list, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem *item) {
        if (item)
            open(item->data(Page).toString());
    });
    connect(&field, &QLineEdit::returnPressed, list, [list] {
        list->setCurrentRow(0);
        list->setFocus();
    });
    return list;
}

QWidget *HelpPages::buildPage()
{
    auto *panel = new QWidget;
    auto *rows = new QVBoxLayout(panel);
    rows->setContentsMargins({});
    m_page = Controls::named(new QTextBrowser, u"brwHelp"_s);
    m_page->setAccessibleName(u"Page of the help"_s);
    auto *buttons = new QHBoxLayout;
    const auto addButton = [&](const QString &name, const QString &caption, const QString &icon,
                               QKeySequence::StandardKey key, auto turn, auto available) {
        auto *button = Controls::named(new QToolButton, name);
        button->setText(caption);
        button->setIcon(Icons::named(icon));
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setShortcut(key);
        button->setEnabled(false);
        buttons->addWidget(button);
        connect(button, &QToolButton::clicked, m_page, turn);
        connect(m_page, available, button, &QWidget::setEnabled);
    };
    addButton(u"cmdHelpBack"_s, u"Back"_s, u"arrow-left"_s, QKeySequence::Back, &QTextBrowser::backward,
              &QTextBrowser::backwardAvailable);
    addButton(u"cmdHelpForward"_s, u"Forward"_s, u"arrow-right"_s, QKeySequence::Forward,
              &QTextBrowser::forward, &QTextBrowser::forwardAvailable);
    buttons->addStretch();
    rows->addLayout(buttons);
    rows->addWidget(m_page);
    return panel;
}

void HelpPages::takeColours()
{
    setPalette(Readable::ownLinks(QApplication::palette()));
    m_page->document()->setDefaultStyleSheet(pageStyle(palette()));
}

void HelpPages::open(const QString &page)
{
    m_page->setSource(HelpBook::address(page));
}

// The contents show the current page, however it was reached.
void HelpPages::markInContents(const QUrl &page)
{
    for (QTreeWidgetItemIterator item(m_contents); *item; ++item) {
        if ((*item)->data(0, Page) == page.fileName()) {
            const QSignalBlocker alreadyOpen(m_contents);
            m_contents->setCurrentItem(*item);
        }
    }
}

void HelpPages::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::ApplicationPaletteChange)
        return;
    takeColours();
    m_page->reload();
}
