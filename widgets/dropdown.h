#pragma once

#include <QComboBox>

/// A drop-down with one signal for each choice: by hand, even of the selected entry, and by the program.
class DropDown final : public QComboBox
{
    Q_OBJECT

public:
    DropDown(const QString &name, QWidget *parent);

    /// Selects the entry, -1 for none, and emits chosen() even if it was selected.
    void choose(int index);

    /// Shows @p rows with none selected. A reset of the model selects none either, without a signal.
    void showRows(QAbstractItemModel *rows);

    void showPopup() override;

Q_SIGNALS:
    void chosen(int index);

private:
    bool m_emitted = false; ///< since the list dropped down
};
