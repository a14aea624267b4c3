#include "app/desktop/file_replacement.h"

#include <QFile>
#include <QSaveFile>
#include <QThread>
#include <QThreadPool>

#include <array>
#include <io.h>
#include <windows.h>

bool ReplaceEarlierFile(QSaveFile& file)
{
    std::array<wchar_t, 32768> text{}; // as long as paths get
    GetFinalPathNameByHandleW(reinterpret_cast<HANDLE>(_get_osfhandle(file.handle())), text.data(), text.size(), 0);
    const QString newPath = QString::fromWCharArray(text.data());
    if (file.commit())
        return true;
    // A virus scanner that has opened the new file keeps it from being moved or removed.
    QThreadPool::globalInstance()->start([newPath] {
        for (int tries = 0; tries < 100 && QFile::exists(newPath) && !QFile::remove(newPath); ++tries)
            QThread::msleep(100);
    });
    return false;
}
