#include "app/controls/accessible.h"

#include "app/controls/focus_ring.h"
#include "app/controls/maker_link.h"
#include "app/controls/puzzle_surface.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QToolBar>

namespace {

/// Hides from screen readers what they should skip in a client area or toolbar: hidden controls (every toolbar has a
/// nameless button), the focus ring, the trademark sign.
class SeenControls : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    int childCount() const override { return static_cast<int>(Seen().size()); }
    QAccessibleInterface* child(int index) const override
    {
        return QAccessible::queryAccessibleInterface(Seen().value(index));
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return static_cast<int>(Seen().indexOf(child->object()));
    }

private:
    QObjectList Seen() const
    {
        QObjectList seen = widget()->children();
        seen.removeIf([](const QObject* child) {
            const auto* control = qobject_cast<const QWidget*>(child);
            return control == nullptr || control->isHidden() || control->objectName() == "lblTM" ||
                   qobject_cast<const FocusRing*>(child) != nullptr;
        });
        return seen;
    }
};

class PressableLink : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& action) override
    {
        if (action == pressAction())
            MakerLink::OpenMakersPage();
        else
            QAccessibleWidget::doAction(action);
    }
};

QAccessibleInterface* Describe(const QString& /*className*/, QObject* object)
{
    if (auto* surface = qobject_cast<PuzzleSurface*>(object))
        return new QAccessibleWidget(surface, QAccessible::List, QObject::tr("Puzzle grid"));
    if (qobject_cast<PuzzleSurface*>(object->parent()) != nullptr)
        return new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::ListItem);
    if (auto* link = qobject_cast<MakerLink*>(object))
        return new PressableLink(link, QAccessible::Link);
    if (auto* toolbar = qobject_cast<QToolBar*>(object))
        return new SeenControls(toolbar, QAccessible::ToolBar);
    if (object->objectName() == "client")
        return new SeenControls(qobject_cast<QWidget*>(object), QAccessible::Client);
    return nullptr;
}

} // namespace

void InstallAccessibility()
{
    QAccessible::removeFactory(Describe);
    QAccessible::installFactory(Describe);
}
