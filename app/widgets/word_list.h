#pragma once

#include <QListWidget>

#include <string>
#include <vector>

/// The list of words in four columns of ten, top to bottom, the left column first. It is the only store of
/// the document's words. Positions count from 0.
class WordList : public QListWidget {
    Q_OBJECT

public:
    explicit WordList(QWidget* parent);

    std::vector<std::u16string> Words() const;
    void Insert(int position, const QString& word);
    /// Removes an entry; the selected one leaves no selection behind.
    void Remove(int position);
    void Clear();
    int SelectedPosition() const; ///< -1 when nothing is selected

signals:
    /// The user selected an entry by mouse or keyboard, be it the one that is selected already.
    void Chosen(int position);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

private:
    void Choose();

    bool MousePressing = false;
};
