#include "app/widgets/word_list.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace {

constexpr int Columns = 4;
constexpr int Rows = 10;

} // namespace

WordList::WordList(QWidget* parent) : QListWidget(parent)
{
    setWrapping(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setViewportMargins(1, 1, 1, 1); // at fractional scales the entries' ground would cover the border
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
}

std::vector<std::u16string> WordList::Words() const
{
    std::vector<std::u16string> words;
    for (int i = 0; i < count(); ++i)
        words.push_back(item(i)->text().toStdU16String());
    return words;
}

void WordList::Insert(int position, const QString& word)
{
    auto* entry = new QListWidgetItem(word);
    // A word may be cut short by its column. The tags make sure of a rich text, which shows the escaped one.
    entry->setToolTip(QStringLiteral("<span>%1</span>").arg(word.toHtmlEscaped()));
    entry->setSizeHint(gridSize());
    insertItem(position, entry);
    // Only a file brings more than the columns hold. A bar shown as needed would take its room all the time.
    if (count() > Columns * Rows)
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void WordList::Remove(int position)
{
    if (position == currentRow())
        setCurrentItem(nullptr); // else the view selects a neighbour, also of an entry that was not selected
    delete takeItem(position);
    if (count() <= Columns * Rows)
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void WordList::Clear()
{
    clear();
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

int WordList::SelectedPosition() const
{
    const auto selected = selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
}

void WordList::resizeEvent(QResizeEvent* event)
{
    QListWidget::resizeEvent(event);
    // A column that fills the height to the last pixel would lose its last row to the next one.
    setGridSize(QSize(viewport()->width() / Columns, (viewport()->height() - 1) / Rows));
    for (int i = 0; i < count(); ++i)
        item(i)->setSizeHint(gridSize()); // else it stands at its cell's top
}

void WordList::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return; // the other buttons choose nothing, so they must not select either
    MousePressing = true;
    QListWidget::mousePressEvent(event);
    MousePressing = false;
    if (itemAt(event->position().toPoint()) != nullptr)
        Choose();
}

/// With nothing selected the first arrow key selects the entry that has the focus rather than the one after
/// it, and so do Home and End where they find nowhere to go. A key that leads to the entry that is selected already
/// chooses it again, as a click does.
void WordList::keyPressEvent(QKeyEvent* event)
{
    const bool arrow = event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down;
    const bool stays = (event->key() == Qt::Key_Home && currentRow() == 0) ||
                       (event->key() == Qt::Key_End && currentRow() == count() - 1);
    const int selected = SelectedPosition();
    if ((arrow || stays) && selected < 0 && currentItem() != nullptr)
        currentItem()->setSelected(true);
    else
        QListWidget::keyPressEvent(event);
    const bool leadsThere =
        event->key() == Qt::Key_Space || (!event->text().isEmpty() && selected >= 0 &&
                                          item(selected)->text().startsWith(event->text(), Qt::CaseInsensitive));
    if (selected >= 0 && selected == SelectedPosition() && leadsThere)
        Choose();
}

void WordList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListWidget::selectionChanged(selected, deselected);
    if (!MousePressing && !selected.isEmpty())
        Choose();
}

/// Ctrl and an arrow key only look around; the blank key then selects.
QItemSelectionModel::SelectionFlags WordList::selectionCommand(const QModelIndex& index, const QEvent* event) const
{
    const bool looksAround = event != nullptr && event->type() == QEvent::KeyPress &&
                             static_cast<const QKeyEvent*>(event)->modifiers().testFlag(Qt::ControlModifier);
    if (looksAround)
        return QItemSelectionModel::NoUpdate;
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

void WordList::Choose()
{
    if (SelectedPosition() >= 0)
        emit Chosen(SelectedPosition());
}
