#include "widgets/structurewindow.h"

#include "core/module1.h"
#include "core/runtimeerror.h"
#include "widgets/picturefile.h"
#include "widgets/picturewindow.h"
#include "widgets/statusline.h"

#include <memory>

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
        window->setPicture(
            PictureFile::load(module1.shippedFile(QStringLiteral("Data/chemicals/%1.bmp").arg(row))));
    } catch (const RuntimeError &error) {
        // Many rows have no formula, which the window says. A picture that cannot be read is not worth an
        // interruption.
        StatusLine::show(form1, QStringLiteral("There is no picture of %1").arg(text));
        if (error.number() != ErrorNumber::FileNotFound)
            return;
        window->Label2->setText(QStringLiteral("Image unavailable"));
        window->Label2->show();
        window->Picture1->hide();
    }
    window.release()->showAboveOwner();
}
