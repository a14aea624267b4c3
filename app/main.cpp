#include "app/frmMain.h"
#include "app/pictures.h"
#include "app/program.h"
#include "app/throwaway_settings.h"

#include <QApplication>
#include <QSessionManager>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName(program::Name);
    QApplication::setWindowIcon(pictures::OfProgram());

    const ThrowawaySettings settings;

    frmMain window;
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &window, [&window](QSessionManager& session) {
        session.setRestartHint(QSessionManager::RestartNever);
        if (!session.allowsInteraction())
            return;
        if (!window.EndSession())
            session.cancel();
        session.release();
    });
    window.show();
    return QApplication::exec();
}
