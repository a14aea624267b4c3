#pragma once

#include "app/desktop/program.h"

#include <QMessageBox>

/// Shows a message box over `owner`, modal, in plain text and without an icon. Yes is the default button, or else OK.
/// Returns the button pressed; closing the box means Cancel if there is such a button, else No, else OK.
QMessageBox::StandardButton ShowMessageBox(QWidget* owner, const QString& text, const QString& title = program::Name,
                                           QMessageBox::StandardButtons buttons = QMessageBox::Ok);
