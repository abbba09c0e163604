#pragma once

#include "app/pages/profiles/ProfileDocument.h"

#include <QDialog>

/// Shows the lines that a write would lose, and asks whether to write all the same.
class LostLinesDialog : public QDialog
{
    Q_OBJECT

public:
    LostLinesDialog(const ProfileDocument& document, ProfileFamily family,
                    QWidget* parent = nullptr);
};
