#include "app/controls/accessible.h"

#include "app/controls/focus_ring.h"
#include "app/controls/maker_link.h"
#include "app/controls/puzzle_surface.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QToolBar>

#include <map>
#include <memory>

namespace {

/// One row of the grid: its letters, with spaces between them so that screen readers spell them out.
class RowOfLetters : public QAccessibleInterface {
public:
    RowOfLetters(PuzzleSurface& surface, int row) : Surface(surface), Row(row) {}

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&Surface); }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.readOnly = true;
        return state;
    }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? Surface.Rows().value(Row) : QString();
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    QRect rect() const override { return Surface.RowRect(Row); }

private:
    PuzzleSurface& Surface;
    int Row;
};

class GridOfLetters : public QAccessibleWidget {
public:
    explicit GridOfLetters(PuzzleSurface* surface)
        : QAccessibleWidget(surface, QAccessible::List, QObject::tr("Puzzle grid")), Surface(*surface)
    {
    }
    ~GridOfLetters() override
    {
        for (const auto& [row, id] : Rows)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return static_cast<int>(Surface.Rows().size()); }
    QAccessibleInterface* child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        QAccessible::Id& id = Rows[index];
        if (id == 0)
            id = QAccessible::registerAccessibleInterface(new RowOfLetters(Surface, index));
        return QAccessible::accessibleInterface(id);
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        for (const auto& [row, id] : Rows)
            if (QAccessible::accessibleInterface(id) == child)
                return row;
        return -1;
    }

private:
    PuzzleSurface& Surface;
    mutable std::map<int, QAccessible::Id> Rows; ///< made on first use
};

/// A client area or a toolbar without what a screen reader should skip: hidden controls (every toolbar has a nameless
/// button), the focus ring, the trademark sign.
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
    explicit PressableLink(MakerLink* link)
        : QAccessibleWidget(link, QAccessible::Link, QObject::tr("%1 website").arg(link->text()))
    {
    }

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
        return new GridOfLetters(surface);
    if (auto* link = qobject_cast<MakerLink*>(object))
        return new PressableLink(link);
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
