#include "app/desktop/application.h"
#include "app/desktop/program.h"
#include "app/frmMain.h"

#include <QIcon>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    PrepareApplication();
    QApplication::setApplicationName(program::Name);
    QGuiApplication::setDesktopFileName("example.tallowick.Glyphgrove"); // Wayland finds the icon by it
    QIcon icon;
    for (const char* size : {"16", "32", "48"}) // the desktop finds larger ones itself
        icon.addFile(QString(":/pictures/glyphgrove-%1.png").arg(size));
    QApplication::setWindowIcon(icon);

    const WindowKeeper keeper;
    frmMain window;
    window.show();
    return QApplication::exec();
}
