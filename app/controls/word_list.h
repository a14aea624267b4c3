#pragma once

#include <QListWidget>

#include <string>
#include <vector>

/// The list of words in four columns of ten, filled from top to bottom, the left column first. It is the only store
/// of the document's words. Positions count from 0.
///
/// The selected entry is the one chosen last; keys start from the current entry. A click chooses an entry. A key
/// moves the current entry and, without Ctrl, chooses it, even when it is the selected one. The space bar chooses in
/// place.
class WordList : public QListWidget {
    Q_OBJECT

public:
    explicit WordList(QWidget* parent);

    std::vector<std::u16string> Words() const;
    void Insert(int position, const QString& word);
    /// Removes an entry. If it was selected, no other entry becomes selected.
    void Remove(int position);
    /// Replaces an entry with `word`. It stays current, but is no longer selected.
    void Replace(int position, const QString& word);
    int SelectedPosition() const;           ///< -1 when nothing is selected
    int CurrentPosition() const;            ///< -1 when the list is empty
    QSize minimumSizeHint() const override; ///< room for four columns of ten words of the usual length limit

signals:
    /// The user chose the entry at `position`, perhaps once more.
    void Chosen(int position);

protected:
    void updateGeometries() override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseMoveEvent(QMouseEvent* /*event*/) override {} // dragging chooses nothing
    void keyPressEvent(QKeyEvent* event) override;
    void keyboardSearch(const QString& search) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& /*index*/,
                                                         const QEvent* /*event*/) const override
    {
        return QItemSelectionModel::NoUpdate; // the view moves the current entry; selecting is left to Choose
    }

private:
    void Choose(int position);

    QPersistentModelIndex Current; ///< kept here while the list is without the focus
};
