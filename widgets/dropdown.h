#pragma once

#include <QComboBox>

/// A drop-down that tells of every choice of an entry: by hand, also if the entry was selected already, and
/// by the program.
class DropDown final : public QComboBox
{
    Q_OBJECT

public:
    DropDown(const QString &name, QWidget *parent);

    /// Selects the entry and tells of it even if it was selected already; -1 selects none.
    void choose(int index);

    /// Shows the rows of @p rows, none selected. A fill of the model selects none either, and tells nobody.
    void showRows(QAbstractItemModel *rows);

    void showPopup() override;

Q_SIGNALS:
    void chosen(int index);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    bool m_told = false; ///< of the change that the user's action under way has brought
};
