#include "widgets/tablesnotice.h"

#include "core/desktop.h"
#include "store/latertables.h"
#include "widgets/controls.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

TablesNotice::TablesNotice(int index, LaterTables &tables, Desktop &desktop, QWidget *parent) : QFrame(parent)
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 12, 16, 12);
    row->setSpacing(16);
    QLabel *text = Controls::label({}, u"These tables are not read at start-up."_s, this);
    row->addWidget(text);
    auto *button = Controls::named(new QPushButton(u"Read them now"_s, this),
                                   Controls::indexedName("cmdReadTables", index));
    button->setAccessibleDescription(text->text());
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this,
            [&tables, &desktop] { endOnError(desktop, [&] { tables.read(); }); });
    connect(&tables, &LaterTables::changed, this, [this, &tables] { setVisible(!tables.areRead()); });
    setVisible(!tables.areRead());
}
