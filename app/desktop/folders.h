#pragma once

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

/// The folder in which dialogs propose new files: the user's documents, or home where there is none.
inline QDir UsersDocuments()
{
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    return documents.exists() ? documents : QDir::home();
}

/// Sends the toolkit's own settings, which its file dialog writes, to a place that can hold no file. Nothing stays on
/// disk but the user's files, even if the program is killed.
inline void KeepNoSettings()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
}
