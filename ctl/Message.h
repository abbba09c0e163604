#pragma once

class QString;

/// Writes a line for people to the standard error, behind the program's name. Where even that is
/// not possible nothing can be told.
void showMessage(const QString& text);
