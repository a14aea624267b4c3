#include "app/desktop/file_replacement.h"

#include <QSaveFile>

bool ReplaceEarlierFile(QSaveFile& file)
{
    return file.commit();
}
