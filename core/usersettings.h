#pragma once

#include <QSettings>

/// Settings of the user, independent of the program folder.
inline QSettings userSettings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, "Alembra", "Alembra_uk");
}
