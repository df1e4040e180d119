#pragma once

#include "reports/savedialog.h"

#include <QObject>

class ListActions;
class OwnActions;

/// "Save table as CSV" of the menu Edit and of the lists' context menus.
class CsvAction final : public QObject
{
    Q_OBJECT

public:
    CsvAction(const OwnActions &actions, const ListActions &lists, Module1 &module, Desktop &desktop);

private:
    void save();

    const ListActions &m_lists;
    Desktop &m_desktop;
    SaveDialog m_dialog;
};
