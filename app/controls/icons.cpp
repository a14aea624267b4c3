#include "app/controls/icons.h"

namespace icons {

QIcon ForToolbar(const QString& name)
{
    QIcon icon;
    // Pixmaps are cached by name, so all icons share them, and no icon engine plug-in is searched for.
    for (const char* density : {"", "@2x", "@3x"})
        icon.addPixmap(QPixmap(QString(":/pictures/%1%2.png").arg(name, density)));
    return icon;
}

QIcon OfProgram()
{
    QIcon icon;
    for (const int size : {16, 32, 48}) // for title bars and task bars; the desktop finds larger ones itself
        icon.addFile(QString(":/pictures/glyphgrove-%1.png").arg(size), QSize(size, size));
    return icon;
}

} // namespace icons
