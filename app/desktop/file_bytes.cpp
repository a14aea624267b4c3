#include "app/desktop/file_bytes.h"

#include "app/desktop/file_replacement.h"

#include <QFileInfo>
#include <QOperatingSystemVersion>
#include <QSaveFile>
#include <QThread>

namespace file_bytes {

namespace {

/// On Windows, a virus scanner or a synchronised folder may hold a file for a moment.
template <class Action>
bool Try(Action action)
{
    int tries = QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows ? 10 : 1;
    while (!action()) {
        if (--tries == 0)
            return false;
        QThread::msleep(100);
    }
    return true;
}

bool Overwrite(QFile& file, QByteArrayView bytes, qint64 size)
{
    return file.seek(0) && file.write(bytes.data(), bytes.size()) == bytes.size() && file.resize(size);
}

/// Overwrites an existing file. If there is no room for the new contents, the old ones are put back: their
/// space is still allocated.
bool WriteInPlace(const QString& path, QByteArrayView bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered))
        return false;
    const qint64 size = file.size();
    const QByteArray earlier = file.read(bytes.size());
    if (Overwrite(file, bytes, bytes.size()))
        return true;
    Overwrite(file, earlier, size);
    return false;
}

bool SaveOnce(const QString& path, QByteArrayView bytes)
{
    const QFileInfo there(path);
    if (there.exists() && !there.isFile())
        return false;
    if (QSaveFile file(path); file.open(QIODevice::WriteOnly)) {
        // commit() flushes too, but ignores a failure, and then replaces the file with an empty one.
        if (file.write(bytes.data(), bytes.size()) != bytes.size() || !file.flush())
            return false;
        if (ReplaceEarlierFile(file))
            return true;
    }
    return there.exists() && WriteInPlace(path, bytes);
}

} // namespace

std::string Read(const QString& path, std::size_t most)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !Try([&] { return file.open(QIODevice::ReadOnly); }))
        return {};
    return file.read(static_cast<qint64>(most)).toStdString();
}

bool Save(const QString& path, QByteArrayView bytes)
{
    return Try([&] { return SaveOnce(path, bytes); });
}

} // namespace file_bytes
