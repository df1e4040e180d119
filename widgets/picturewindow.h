#pragma once

#include "widgets/picturebox.h"
#include "widgets/sidewindow.h"

#include <QLabel>

/// A side window that shows one named picture on a white sheet, with OK beside it: `Form2` and `Form4`.
class PictureWindow final : public SideWindow
{
    Q_OBJECT

public:
    struct Design
    {
        const char *name;    ///< "Form2"
        const char *caption; ///< "Chimical structure"
        QSize size;          ///< of the window, logical pixels
        double besideSheet;  ///< twips at the right that the picture is not centred over; OK stands there
    };

    PictureWindow(const Design &design, QWidget &owner);

    /// Shows @p picture at its own size, or smaller where the sheet is, and centres it.
    void setPicture(const QImage &picture);

    PictureBox *Picture1;
    QLabel *Label1; ///< what the picture shows
    QLabel *Label2; ///< hidden at first; takes the place of a picture that is not there

private:
    const double m_besideSheet;
};
