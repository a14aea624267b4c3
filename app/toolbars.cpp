#include "app/toolbars.h"

#include "app/looks.h"
#include "app/pictures.h"

#include <QLayout>

QToolBar* MakeToolbar(const QString& name, const QString& accessibleName,
                      std::initializer_list<ToolbarButton> buttons, QWidget* client)
{
    auto* toolbar = new QToolBar(client);
    toolbar->setObjectName(name);
    toolbar->setAccessibleName(accessibleName);
    toolbar->layout()->setContentsMargins({}); // room for pictures of their full size
    toolbar->setIconSize(QSize(16, 16));
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    int index = 0;
    for (const ToolbarButton& button : buttons) {
        const QIcon picture = pictures::ForToolbar(QLatin1String(button.picture));
        QAction* action = toolbar->addAction(picture, QObject::tr(button.tip));
        action->setObjectName(QLatin1String(button.key));
        const QString keys = QKeySequence(button.keys).toString(QKeySequence::NativeText);
        action->setToolTip(keys.isEmpty() ? action->text() : QStringLiteral("%1 (%2)").arg(action->text(), keys));
        action->setData(++index);
        toolbar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus); // the keyboard reaches it too
    }
    return toolbar;
}

int ToolbarIndex(const QAction& action)
{
    return action.data().toInt();
}
