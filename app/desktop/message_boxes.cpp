#include "app/desktop/message_boxes.h"

QMessageBox::StandardButton ShowMessageBox(QWidget* owner, const QString& text, const QString& title,
                                           QMessageBox::StandardButtons buttons)
{
    QMessageBox box(QMessageBox::NoIcon, title, text, buttons, owner);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(buttons.testFlag(QMessageBox::Yes) ? QMessageBox::Yes : QMessageBox::Ok);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}
