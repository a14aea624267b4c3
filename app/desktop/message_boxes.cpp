#include "app/desktop/message_boxes.h"

namespace message_boxes {

namespace {

/// Escape means Cancel if there is such a button, else No, else the only button.
QMessageBox::StandardButton Ask(QWidget* owner, const QString& text, const QString& title,
                                QMessageBox::StandardButtons buttons)
{
    QMessageBox box(QMessageBox::NoIcon, title, text, buttons, owner);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(buttons.testFlag(QMessageBox::Yes) ? QMessageBox::Yes : QMessageBox::Ok);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

void Tell(QWidget* owner, const QString& text, const QString& title)
{
    Ask(owner, text, title, QMessageBox::Ok);
}

bool Confirm(QWidget* owner, const QString& text, const QString& title)
{
    return Ask(owner, text, title, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

QMessageBox::StandardButton AskToSave(QWidget* owner, const QString& text, const QString& title)
{
    return Ask(owner, text, title, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
}

} // namespace message_boxes
