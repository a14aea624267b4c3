#include "app/desktop/file_bytes.h"

#include <QFileInfo>
#include <QOperatingSystemVersion>
#include <QSaveFile>
#include <QThread>

namespace file_bytes {

namespace {

// On Windows, a virus scanner or a synchronised folder may hold the file for a moment.
constexpr int MostTries = QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows ? 10 : 1;

/// Follows symbolic links to their end, which need not exist; stops after 40, as desktops do.
QString EndOfLinks(const QString& path)
{
    QFileInfo there(path);
    for (int links = 0; there.isSymLink() && links < 40; ++links)
        there.setFile(there.symLinkTarget());
    return there.filePath();
}

bool Overwrite(QFile& file, const QByteArray& bytes)
{
    return file.seek(0) && file.write(bytes) == bytes.size() && file.resize(bytes.size());
}

/// Overwrites an existing file. If the new contents find no room, the old ones go back: they still have theirs.
bool WriteInPlace(const QString& path, const QByteArray& bytes)
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

bool Save(const QString& path, const std::string& bytes)
{
    const QString target = EndOfLinks(path);
    const QFileInfo there(target);
    if (there.isSymLink() || (there.exists() && !there.isFile()))
        return false;
    const QByteArray contents = QByteArray::fromStdString(bytes);
    for (int tries = 1;; ++tries) {
        QSaveFile file(target);
        // commit() flushes too, but ignores a failure, and then replaces the file with an empty one.
        if (file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.flush() &&
            file.commit())
            return true;
        const bool refused = file.error() == QFileDevice::OpenError || file.error() == QFileDevice::RenameError;
        const bool mayOverwrite = refused && there.isWritable();
        if (mayOverwrite && WriteInPlace(target, contents))
            return true;
        if (!mayOverwrite || tries == MostTries)
            return false;
        QThread::msleep(100);
    }
}

} // namespace file_bytes
