#include "app/controls/icons.h"

/// A library's resources are left out of a program that does not ask for them, once; the macro wants no namespace.
static void KeepResources()
{
    Q_INIT_RESOURCE(glyphgrove);
}

namespace icons {

QIcon ForToolbar(const QString& name)
{
    KeepResources();
    QIcon icon;
    // As pixmaps, which the toolkit keeps by their names: every icon made of them shares what is kept of them, and no
    // plug-in is looked for that might draw the file.
    for (const char* density : {"", "@2x", "@3x"})
        icon.addPixmap(QPixmap(QString(":/pictures/%1%2.png").arg(name, density)));
    return icon;
}

QIcon OfProgram()
{
    QIcon icon;
    for (const int size : {16, 32, 48, 64}) // for title bars and task bars; larger ones the desktop finds itself
        icon.addFile(QString(":/pictures/glyphgrove-%1.png").arg(size), QSize(size, size));
    return icon;
}

} // namespace icons
