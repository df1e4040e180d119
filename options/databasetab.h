#pragma once

#include "options/databasemaintenance.h"

#include <QWidget>

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

/// `frmbdd`: where the database is, how large and how old, and the buttons for its copies.
class DatabaseTab final : public QWidget
{
    Q_OBJECT

public:
    DatabaseTab(Module1 &module, Desktop &desktop, QWidget *parent);

    /// Measures the database. RuntimeError 53 if it is not there.
    void load();

Q_SIGNALS:
    /// The original database is back in place of the working one.
    void databaseReplaced();

private:
    QPushButton *addAction(const QString &labelName, const QString &text, const QString &buttonName,
                           const QString &caption);
    void restore();
    void showFigures(const QString &sizeCaption, const QString &dateCaption);

    Desktop &m_desktop;
    DatabaseMaintenance m_maintenance;
    QGridLayout *m_actions;
    QLineEdit *Text1;
    QLabel *Label5;
    QLabel *Label6;
};
