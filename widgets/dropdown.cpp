#include "widgets/dropdown.h"

DropDown::DropDown(const QString &name, QWidget *parent) : QComboBox(parent)
{
    setObjectName(name);
    connect(this, &QComboBox::currentIndexChanged, this, [this](int index) {
        m_told = true;
        Q_EMIT chosen(index);
    });
    // Comes after each choice by hand, in addition to the signal of a change.
    connect(this, &QComboBox::activated, this, [this](int index) {
        if (!m_told)
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
    // On a reset the base class, which hears of it first, selects the first row.
    connect(rows, &QAbstractItemModel::modelAboutToBeReset, this, [this] { blockSignals(true); });
    connect(rows, &QAbstractItemModel::modelReset, this, [this] {
        setCurrentIndex(-1);
        blockSignals(false);
    });
}

void DropDown::showPopup()
{
    m_told = false;
    QComboBox::showPopup();
}

void DropDown::keyPressEvent(QKeyEvent *event)
{
    m_told = false;
    QComboBox::keyPressEvent(event);
}

void DropDown::wheelEvent(QWheelEvent *event)
{
    m_told = false;
    QComboBox::wheelEvent(event);
}
