#include "elements/picturewindows.h"

#include "widgets/picturefile.h"
#include "widgets/picturewindow.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize ZoomSize{480, 480};
constexpr PictureWindow::Design Form4{"Form4", "Crystal structure", {520, 464}, 1000};

} // namespace

void openZoomWindow(QWidget &form1, const QString &caption, const QString &picturePath)
{
    const QImage picture = PictureFile::load(picturePath);
    auto *window = new SideWindow("Form5", form1);
    window->setWindowTitle(caption);
    window->setFixedSize(ZoomSize);
    auto *Image1 = new PictureBox(u"Image1"_s, window);
    Image1->resize(ZoomSize);
    Image1->setPicture(picture);
    Image1->setAccessibleName(caption);
    Image1->setFocusPolicy(Qt::StrongFocus);
    QObject::connect(Image1, &PictureBox::clicked, window, &QWidget::close);
    window->showAboveOwner();
}

void openCrystalWindow(QWidget &form1, const QString &crystalName, const QString &picturePath)
{
    const QImage picture = PictureFile::load(picturePath);
    auto *window = new PictureWindow(Form4, form1);
    window->Label1->setText(crystalName);
    window->setPicture(picture);
    window->showAboveOwner();
}
