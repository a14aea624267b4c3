#pragma once

#include "app/program.h"

#include <QMessageBox>

/// The program's message boxes: modal, plain text, no icon. Closing one means its most cautious button.
namespace message_boxes {

void Tell(QWidget* owner, const QString& text, const QString& title = program::Name);

/// Yes is the default; closing the box means No.
bool Confirm(QWidget* owner, const QString& text, const QString& title);

/// Yes, No or Cancel; Yes is the default; closing the box means Cancel.
QMessageBox::StandardButton AskToSave(QWidget* owner, const QString& text, const QString& title);

} // namespace message_boxes
