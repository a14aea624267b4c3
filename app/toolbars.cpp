#include "app/toolbars.h"

#include "app/looks.h"
#include "app/pictures.h"

QToolBar* MakeToolbar(const QString& name, std::initializer_list<ToolbarButton> buttons, QWidget* client)
{
    auto* toolbar = new QToolBar(client);
    toolbar->setObjectName(name);
    toolbar->setIconSize(QSize(16, 16));
    toolbar->setMovable(false);
    toolbar->setFloatable(false);
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    int index = 0;
    for (const ToolbarButton& button : buttons) {
        const QIcon picture = pictures::ForToolbar(QLatin1String(button.picture));
        QAction* action = toolbar->addAction(picture, QObject::tr(button.tip));
        action->setObjectName(QLatin1String(button.key));
        action->setToolTip(QObject::tr(button.tip));
        action->setData(++index);
        toolbar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus); // the keyboard reaches it too
    }
    return toolbar;
}

int ToolbarIndex(const QAction& action)
{
    return action.data().toInt();
}
