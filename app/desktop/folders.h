#pragma once

#include <QDir>
#include <QStandardPaths>

/// The folder in which dialogs propose new files: the user's documents, or home where there is none.
inline QDir UsersDocuments()
{
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    return documents.exists() ? documents : QDir::home();
}
