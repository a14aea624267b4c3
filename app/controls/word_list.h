#pragma once

#include <QListWidget>

#include <string>
#include <vector>

/// The list of words in four columns of ten, top to bottom, the left column first. It is the only store of
/// the document's words. Positions count from 0.
///
/// The current entry is the one that the user looks at, the selected one the one last chosen. A click chooses. A key
/// moves the current entry; without Ctrl, the entry where it ends is chosen. The space bar chooses without moving.
class WordList : public QListWidget {
    Q_OBJECT

public:
    explicit WordList(QWidget* parent);

    std::vector<std::u16string> Words() const;
    void Insert(int position, const QString& word);
    /// Removes an entry; the selected one leaves no selection behind.
    void Remove(int position);
    /// Puts `word` in an entry's place, which is still looked at, but no longer selected.
    void Replace(int position, const QString& word);
    int SelectedPosition() const; ///< -1 when nothing is selected

signals:
    /// The user chose an entry, which is selected now; it may have been before.
    void Chosen(int position);

protected:
    void updateGeometries() override;
    void resizeEvent(QResizeEvent* event) override;
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
};
