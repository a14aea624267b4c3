#include "app/frmMain.h"
#include "app/pictures.h"
#include "app/program.h"

#include <QApplication>
#include <QSessionManager>
#include <QSettings>
#include <QTemporaryDir>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName(program::Name);
    QApplication::setWindowIcon(pictures::OfProgram());

    // The toolkit's file dialog keeps settings of its own; nothing may stay but the user's files.
    const QTemporaryDir toolkitSettings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, toolkitSettings.path());

    frmMain window;
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &window,
                     [&window](QSessionManager& session) {
                         if (session.allowsInteraction() && !window.EndSession())
                             session.cancel();
                     });
    window.show();
    return QApplication::exec();
}
