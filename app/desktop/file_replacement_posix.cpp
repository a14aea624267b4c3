#include "app/desktop/file_replacement.h"

#include <QFile>
#include <QMap>
#include <QSaveFile>

#include <climits>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

/// Returns the values of the file's extended attributes by name. Access lists and security labels are among them.
QMap<QByteArray, QByteArray> Attributes(const QByteArray& path)
{
    QMap<QByteArray, QByteArray> attributes;
    QByteArray names(XATTR_LIST_MAX, '\0');
    for (const QByteArray& name : names.left(listxattr(path, names.data(), XATTR_LIST_MAX)).split('\0')) {
        QByteArray value(XATTR_SIZE_MAX, '\0');
        attributes[name] = value.left(getxattr(path, name, value.data(), XATTR_SIZE_MAX));
    }
    return attributes;
}

/// Gives the new file the earlier one's owner and group where they differ. False if any other difference remains.
bool TakesAccess(int newFile, const QByteArray& earlierPath)
{
    struct stat now {};
    struct stat earlier {};
    if (stat(earlierPath, &earlier) != 0)
        return true;
    return fstat(newFile, &now) == 0 && now.st_mode == earlier.st_mode && earlier.st_nlink == 1 &&
           Attributes("/proc/self/fd/" + QByteArray::number(newFile)) == Attributes(earlierPath) &&
           ((now.st_uid == earlier.st_uid && now.st_gid == earlier.st_gid) ||
            fchown(newFile, earlier.st_uid, earlier.st_gid) == 0);
}

} // namespace

bool ReplaceEarlierFile(QSaveFile& file)
{
    return TakesAccess(file.handle(), QFile::encodeName(file.fileName())) && file.commit();
}
