#include "app/controls/toolbars.h"

#include "app/desktop/application.h"

#include <QLayout>

QToolBar* MakeToolbar(const char* name, const QString& accessibleName, const std::vector<ToolbarButton>& buttons,
                      QWidget& client, const std::function<void(int index)>& clicked)
{
    auto* toolbar = new QToolBar(&client);
    toolbar->setObjectName(name);
    toolbar->setAccessibleName(accessibleName);
    toolbar->layout()->setContentsMargins({}); // or icons shrink
    toolbar->setIconSize(QSize(16, 16));
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const ToolbarButton& button : buttons) {
        const QString key = button.key;
        QAction* action = toolbar->addAction(QIcon(":/pictures/" + key.toLower() + ".png"), button.tooltip);
        action->setObjectName(key);
        toolbar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus); // in the tab order
        const auto index = static_cast<int>(toolbar->actions().size());
        QObject::connect(action, &QAction::triggered, toolbar, Guarded([=](bool /*checked*/) { clicked(index); }));
    }
    return toolbar;
}
