#include "widgets/dropdown.h"

DropDown::DropDown(const QString &name, QWidget *parent) : QComboBox(parent)
{
    setObjectName(name);
    connect(this, &QComboBox::currentIndexChanged, this, [this](int index) {
        m_emitted = true;
        Q_EMIT chosen(index);
    });
    // From the dropped-down list the selected entry can be chosen again, which changes nothing.
    connect(this, &QComboBox::activated, this, [this](int index) {
        if (!m_emitted)
            Q_EMIT chosen(index);
    });
}

void DropDown::choose(int index)
{
    const bool changes = index != currentIndex();
    setCurrentIndex(index);
    if (!changes)
        Q_EMIT chosen(index);
}

void DropDown::showRows(QAbstractItemModel *rows)
{
    setModel(rows);
    setCurrentIndex(-1);
    // On a reset the base class selects the first row.
    connect(rows, &QAbstractItemModel::modelAboutToBeReset, this, [this] { blockSignals(true); });
    connect(rows, &QAbstractItemModel::modelReset, this, [this] {
        setCurrentIndex(-1);
        blockSignals(false);
    });
}

void DropDown::showPopup()
{
    m_emitted = false;
    QComboBox::showPopup();
}
