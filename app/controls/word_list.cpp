#include "app/controls/word_list.h"

#include "app/controls/looks.h"
#include "wordlist/limits.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

namespace {

constexpr int Columns = 4;
constexpr int Rows = 10;
constexpr int Margin = 1; ///< at fractional scales entries would cover the border

} // namespace

WordList::WordList(QWidget* parent) : QListWidget(parent)
{
    setWrapping(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setViewportMargins(Margin, Margin, Margin, Margin);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
}

std::vector<std::u16string> WordList::Words() const
{
    std::vector<std::u16string> words;
    words.reserve(static_cast<std::size_t>(count()));
    for (int i = 0; i < count(); ++i)
        words.push_back(item(i)->text().toStdU16String());
    return words;
}

void WordList::Insert(int position, const QString& word)
{
    auto* entry = new QListWidgetItem(word);
    entry->setToolTip(looks::ToolTip(word)); // the column may cut the word
    entry->setSizeHint(gridSize());
    insertItem(position, entry);
    if (count() == 1)
        Current = model()->index(0, 0);
}

void WordList::Remove(int position)
{
    const int current = Current.row();
    delete takeItem(position);
    if (current == position)
        Current = model()->index(std::min(position, count() - 1), 0);
}

void WordList::Replace(int position, const QString& word)
{
    const int current = CurrentPosition();
    Remove(position);
    Insert(position, word);
    Current = model()->index(current, 0);
}

int WordList::SelectedPosition() const
{
    const auto selected = selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
}

int WordList::CurrentPosition() const { return currentRow() < 0 ? Current.row() : currentRow(); }

QSize WordList::minimumSizeHint() const
{
    const int column = static_cast<int>(wordlist::MaxWordLength) * fontMetrics().averageCharWidth();
    const int border = 2 * (frameWidth() + Margin);
    return {Columns * column + border, Rows * (fontMetrics().height() + 3) + 1 + border};
}

/// Only a file can bring more words than the columns hold. A bar shown "as needed" would reserve its room all the
/// time.
void WordList::updateGeometries()
{
    setHorizontalScrollBarPolicy(count() > Columns * Rows ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    QListWidget::updateGeometries();
}

void WordList::resizeEvent(QResizeEvent* event)
{
    QListWidget::resizeEvent(event);
    // A column that fills the height to the last pixel loses its last row to the next column.
    setGridSize(QSize(viewport()->width() / Columns, (viewport()->height() - 1) / Rows));
    for (int i = 0; i < count(); ++i)
        item(i)->setSizeHint(gridSize()); // or it moves to the top of its cell
}

void WordList::focusInEvent(QFocusEvent* event)
{
    setCurrentRow(CurrentPosition(), QItemSelectionModel::NoUpdate);
    QListWidget::focusInEvent(event);
}

/// To screen readers the toolkit's current entry has the focus, so there is none without it.
void WordList::focusOutEvent(QFocusEvent* event)
{
    if (currentRow() >= 0)
        Current = currentIndex();
    setCurrentRow(-1, QItemSelectionModel::NoUpdate);
    QListWidget::focusOutEvent(event);
}

void WordList::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        Choose(row(itemAt(event->position().toPoint())));
}

void WordList::keyPressEvent(QKeyEvent* event)
{
    const bool space = event->key() == Qt::Key_Space;
    const bool moves = event->key() >= Qt::Key_Home && event->key() <= Qt::Key_PageDown; // the arrows too
    if (!space)
        QListWidget::keyPressEvent(event);
    if (space || (moves && !event->modifiers().testFlag(Qt::ControlModifier)))
        Choose(currentRow());
}

/// A letter chooses the next entry that begins with it.
void WordList::keyboardSearch(const QString& search)
{
    const QModelIndex next = model()->index((CurrentPosition() + 1) % std::max(count(), 1), 0);
    const auto found = model()->match(next, Qt::DisplayRole, search, 1, Qt::MatchStartsWith | Qt::MatchWrap);
    Choose(found.isEmpty() ? -1 : found.first().row());
}

void WordList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListWidget::selectionChanged(selected, deselected);
    if (!selected.isEmpty())
        emit Chosen(SelectedPosition());
}

void WordList::Choose(int position)
{
    const bool again = position == SelectedPosition();
    if (position < 0)
        return;
    setCurrentRow(position, QItemSelectionModel::NoUpdate); // first, for choosing moves the focus
    selectionModel()->select(model()->index(position, 0), QItemSelectionModel::ClearAndSelect);
    if (again)
        emit Chosen(position);
}
