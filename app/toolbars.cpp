#include "app/toolbars.h"

#include "app/dialogs.h"
#include "app/pictures.h"

#include <QLayout>

QToolBar* MakeToolbar(const char* name, const QString& accessibleName, const std::vector<ToolbarButton>& buttons,
                      QWidget& client, const std::function<void(int index)>& clicked)
{
    auto* toolbar = new QToolBar(&client);
    toolbar->setObjectName(QLatin1String(name));
    toolbar->setAccessibleName(accessibleName);
    toolbar->layout()->setContentsMargins({}); // room for icons of their full size
    toolbar->setIconSize(QSize(16, 16));
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const ToolbarButton& button : buttons) {
        const QString key = QLatin1String(button.key);
        QAction* action = toolbar->addAction(pictures::ForToolbar(key.toLower()), button.tooltip);
        action->setObjectName(key);
        toolbar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus); // the keyboard reaches it too
        QObject::connect(action, &QAction::triggered, toolbar,
                         [clicked, index = static_cast<int>(toolbar->actions().size())] {
                             if (CommandsMayStart())
                                 clicked(index);
                         });
    }
    return toolbar;
}
