#include "app/desktop/file_bytes.h"

#include <QFileInfo>
#include <QOperatingSystemVersion>
#include <QSaveFile>
#include <QThread>

namespace file_bytes {

namespace {

// On Windows, a virus scanner or a synchronised folder may hold the file for a moment.
constexpr int MostTries = QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows ? 10 : 1;

bool Overwrite(QFile& file, QByteArrayView bytes)
{
    return file.seek(0) && file.write(bytes.data(), bytes.size()) == bytes.size() && file.resize(bytes.size());
}

/// Overwrites an existing file. If the new contents find no room, the old ones go back: they still have theirs.
bool WriteInPlace(const QString& path, QByteArrayView bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered))
        return false;
    const QByteArray earlier = file.readAll();
    if (Overwrite(file, bytes))
        return true;
    Overwrite(file, earlier);
    return false;
}

} // namespace

std::string Read(const QString& path, std::size_t most)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return file.read(static_cast<qint64>(most)).toStdString();
}

bool Save(const QString& path, QByteArrayView bytes)
{
    const QFileInfo there(path);
    if (there.exists() && !there.isFile())
        return false;
    for (int tries = 1;; ++tries) {
        QSaveFile file(path);
        // commit() flushes too, but ignores a failure, and then replaces the file with an empty one.
        if (file.open(QIODevice::WriteOnly) && file.write(bytes.data(), bytes.size()) == bytes.size() &&
            file.flush() && file.commit())
            return true;
        const bool refused = file.error() == QFileDevice::OpenError || file.error() == QFileDevice::RenameError;
        const bool mayOverwrite = refused && there.isWritable();
        if (mayOverwrite && WriteInPlace(path, bytes))
            return true;
        if (!mayOverwrite || tries == MostTries)
            return false;
        QThread::msleep(100);
    }
}

} // namespace file_bytes
