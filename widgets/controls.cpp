#include "widgets/controls.h"

#include <QLabel>
#include <QScreen>

using namespace Qt::StringLiterals;

QSize Controls::roomFor(const QWidget &window)
{
    return window.screen()->availableSize() - WindowFrame;
}

bool Controls::isOnTop(const QWidget &control, const QWidget &pane)
{
    if (!control.isVisibleTo(&pane))
        return false;
    const QWidget *uppermost = pane.childAt(control.mapTo(&pane, control.rect().center()));
    return uppermost && (uppermost == &control || control.isAncestorOf(uppermost));
}

QFont Controls::largeType(QFont font)
{
    font.setPixelSize(15);
    font.setBold(true);
    return font;
}

QString Controls::indexedName(const char *array, int index)
{
    return u"%1(%2)"_s.arg(array).arg(index);
}

QLabel *Controls::label(const QString &name, const QString &text, QWidget *parent)
{
    auto *label = named(new QLabel(text, parent), name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel *Controls::heading(const QString &name, const QString &text, QWidget *parent)
{
    QLabel *heading = label(name, text, parent);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    return heading;
}
