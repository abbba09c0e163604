#pragma once

#include "inspection/profiles/ProfileDifference.h"

#include <QDialog>

#include <memory>

class QTableView;
class QVBoxLayout;

/// Shows what a change would do to a file besides what it is asked for, line by line, and asks
/// whether to make it all the same. Cancel is the default.
class ProfileDifferenceDialog : public QDialog
{
    Q_OBJECT

public:
    ProfileDifferenceDialog(std::shared_ptr<const ProfileDifference> difference,
                            const ProfileChange& change, QWidget* parent = nullptr);

private:
    void addSentence(QVBoxLayout* layout, const char* objectName, const QString& text);
    void addButtons(QVBoxLayout* layout, const ProfileChange& change);
    QTableView* makeTable();
    QString summary() const;
    QString destroyed() const;

    std::shared_ptr<const ProfileDifference> m_difference;
};
