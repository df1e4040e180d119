#include "widgets/structurewindow.h"

#include "core/module1.h"
#include "core/runtimeerror.h"
#include "widgets/picturefile.h"
#include "widgets/picturewindow.h"
#include "widgets/statusline.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr PictureWindow::Design Form2{"Form2", "Chimical structure", {540, 340}, 750};

} // namespace

void openStructureWindow(Module1 &module1, QWidget &form1, int row, const QString &text)
{
    module1.SelectedChart = row;
    StatusLine::show(form1, {});
    auto window = std::make_unique<PictureWindow>(Form2, form1);
    window->Label1->setText(text);
    try {
        window->setPicture(PictureFile::load(module1.shippedFile(u"Data/chemicals/%1.bmp"_s.arg(row))));
    } catch (const RuntimeError &error) {
        // Many rows have no formula; the window says so. An unreadable picture only gets the note.
        StatusLine::show(form1, u"There is no picture of %1"_s.arg(text));
        if (error.number() != ErrorNumber::FileNotFound)
            return;
        window->Label2->setText(u"Image unavailable"_s);
        window->Label2->show();
        window->Picture1->hide();
    }
    window.release()->showAboveOwner();
}
