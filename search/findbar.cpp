#include "search/findbar.h"

#include "core/icons.h"
#include "store/datastore.h"
#include "store/rowlistmodel.h"

#include <QHBoxLayout>

FindBar::FindBar(DataStore &store, QLabel &panel3, QWidget *parent)
    : QWidget(parent), m_store(store), m_panel3(panel3)
{
    buildControls();
    connect(Picture2, &QToolButton::clicked, this, [this] {
        ResetSearchPanel();
        Q_EMIT closedByUser();
    });
    ResetSearchPanel();
}

void FindBar::buildControls()
{
    Picture2 = Controls::named(new QToolButton(this), QStringLiteral("Picture2"));
    Picture2->setIcon(Icons::named(QStringLiteral("close")));
    Picture2->setAutoRaise(true);
    Picture2->setAccessibleName(tr("Close search engine"));
    TextBoxM6 = Controls::named(new QLineEdit(this), QStringLiteral("TextBoxM6"));
    TextBoxM6->setAccessibleName(tr("Search text"));
    case1 = Controls::named(new QCheckBox(QStringLiteral("Match case"), this), QStringLiteral("case1"));
    Command11.add(0, new QPushButton(QStringLiteral("Previous"), this));
    Command11.add(1, new QPushButton(QStringLiteral("Next"), this));
    Combo2_3 = Controls::named(new QComboBox(this), QStringLiteral("Combo2(3)"));
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
