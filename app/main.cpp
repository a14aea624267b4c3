#include "app/controls/icons.h"
#include "app/desktop/dialogs.h"
#include "app/desktop/folders.h"
#include "app/frmMain.h"
#include "app/program.h"

#include <QApplication>
#include <QSessionManager>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName(program::Name);
    QGuiApplication::setDesktopFileName("example.tallowick.Glyphgrove"); // Wayland finds the icon by it
    QApplication::setWindowIcon(icons::OfProgram());

    KeepNoSettings();
    const DialogKeeper dialogs;

    frmMain window;
    // The session asks this when it ends and whenever it wants everything saved. Windows close only when it ends.
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &window, [&window](QSessionManager& session) {
        session.setRestartHint(QSessionManager::RestartNever);
        if (!session.allowsInteraction())
            return;
        if (!window.Form_QueryUnload())
            session.cancel();
        session.release();
    });
    window.show();
    return QApplication::exec();
}
