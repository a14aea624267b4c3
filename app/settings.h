#pragma once

#include <QSettings>

/// Sends the toolkit's own settings, which its file dialog writes, to where no file can be: nothing stays on disk
/// but the user's files, however the program ends.
inline void KeepNoSettings()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
}
