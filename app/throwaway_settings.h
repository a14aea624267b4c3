#pragma once

#include <QSettings>
#include <QTemporaryDir>

/// Keeps the toolkit's own settings, which its file dialog writes, in a folder that goes when the program
/// ends: nothing may stay on disk but the user's files.
class ThrowawaySettings {
public:
    ThrowawaySettings() { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, Folder.path()); }

private:
    QTemporaryDir Folder;
};
