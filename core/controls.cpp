#include "core/controls.h"

#include <QLabel>

QString Controls::indexedName(const char *array, int index)
{
    return QStringLiteral("%1(%2)").arg(QLatin1StringView(array)).arg(index);
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
