#pragma once

#include "options/databasemaintenance.h"

#include <QWidget>

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

/// `frmbdd`: path, size and date of the database, and the buttons for its copies.
class DatabaseTab final : public QWidget
{
    Q_OBJECT

public:
    DatabaseTab(Module1 &module, Desktop &desktop, QWidget *parent);

    /// Shows size and date of the database. RuntimeError 53 if it does not exist.
    void load();

Q_SIGNALS:
    /// The original database has replaced the working one.
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
