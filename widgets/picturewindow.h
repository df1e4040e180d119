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
        double besideSheet;  ///< twips at the right for OK; the picture is centred in the rest
    };

    PictureWindow(const Design &design, QWidget &owner);

    /// Shows @p picture centred, at its own size or as large as the sheet allows.
    void setPicture(const QImage &picture);

    PictureBox *Picture1;
    QLabel *Label1; ///< what the picture shows
    QLabel *Label2; ///< hidden at first; for a missing picture

private:
    const double m_besideSheet;
};
