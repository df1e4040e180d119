#include "sidewindows/frmsource.h"

#include "core/desktop.h"
#include "sidewindows/sourcepage.h"
#include "widgets/controls.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize WindowSize(520, 340); // logical pixels

} // namespace

frmSource::frmSource(const TableRow &row, const QString &appFolder, Desktop &desktop, QWidget &owner)
    : SideWindow("frmSource", owner)
{
    setWindowTitle(u"Where is this from?"_s);
    auto *txtSource = Controls::named(new QTextBrowser(this), u"txtSource"_s);
    txtSource->setAccessibleName(u"Source of the row"_s);
    txtSource->setOpenLinks(false);
    txtSource->setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    txtSource->document()->setDefaultStyleSheet(
        u"a { color: %1 }"_s.arg(owner.palette().color(QPalette::Link).name()));
    txtSource->setHtml(SourcePage::html(row, RecordedSource::of(row, appFolder)));
    connect(txtSource, &QTextBrowser::anchorClicked, this,
            [&desktop](const QUrl &target) { desktop.openTarget(target.toString()); });

    auto *column = new QVBoxLayout(this);
    column->addWidget(txtSource);
    column->addWidget(makeOkButton(u"cmdOk"_s), 0, Qt::AlignRight);
    resize(WindowSize.boundedTo(Controls::roomFor(*this)));
    txtSource->setFocus();
}
