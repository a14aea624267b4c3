#include "app/controls/icons.h"
#include "app/desktop/application.h"
#include "app/frmMain.h"
#include "app/program.h"

int main(int argc, char* argv[])
{
    PrepareApplication();
    const QApplication application(argc, argv);
    QApplication::setApplicationName(program::Name);
    QGuiApplication::setDesktopFileName("example.tallowick.Glyphgrove"); // Wayland finds the icon by it
    QApplication::setWindowIcon(icons::OfProgram());

    const WindowKeeper keeper;
    frmMain window;
    window.show();
    return QApplication::exec();
}
