#pragma once

#include "widgets/sidewindow.h"

class QGridLayout;

/// "Captions": the element panel as a picture, with what each of its values and signs means.
///
/// Its closing also closes `Form2`, should that be open.
class Formhelp final : public SideWindow
{
    Q_OBJECT

public:
    explicit Formhelp(QWidget &form1);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    QWidget *buildValues();
    QWidget *buildIsotopes();
    void addSigns(QGridLayout &grid, const QString &heading, const QString &signs, const QString &meanings);
};

void openCaptions(QWidget &form1);
