#pragma once

#include <QSettings>

/// What is kept for a user, whichever program folder is started: a file in the user's own folder for
/// settings.
inline QSettings userSettings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Alembra"),
                     QStringLiteral("Alembra_uk"));
}
