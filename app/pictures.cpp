#include "app/pictures.h"

/// A library's resources are left out of a program that does not ask for them; the macro wants no namespace.
static void KeepResources()
{
    Q_INIT_RESOURCE(glyphgrove);
}

namespace pictures {

QIcon ForToolbar(const QString& name)
{
    KeepResources();
    return QIcon(QStringLiteral(":/pictures/%1.png").arg(name));
}

QIcon OfProgram()
{
    KeepResources();
    QIcon icon;
    for (const int size : {16, 32, 48, 64, 128, 256})
        icon.addFile(QStringLiteral(":/pictures/glyphgrove-%1.png").arg(size), QSize(size, size));
    return icon;
}

} // namespace pictures
