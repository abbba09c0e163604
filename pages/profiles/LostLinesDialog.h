#pragma once

#include "inspection/profiles/ProfileDocument.h"

#include <QDialog>

class QVBoxLayout;

/// Shows the lines that a write would lose and what else it would change, and asks whether to write
/// all the same.
class LostLinesDialog : public QDialog
{
    Q_OBJECT

public:
    /// `changes` tells the rest in sentences.
    LostLinesDialog(const ProfileDocument& document, ProfileFamily family, const QString& changes,
                    QWidget* parent = nullptr);

private:
    void addLines(QVBoxLayout* layout, const ProfileDocument& document, ProfileFamily family);
};
