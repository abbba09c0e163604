#pragma once

#include <QCheckBox>

#include <functional>

class PageContext;

/// The box of a dialog that offers a backup of the store before a change. On, except where there is
/// nothing to back up.
class BackupBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit BackupBox(QWidget* parent = nullptr);
};

/// Backs the store up first where that is wanted, then calls `change` with the backup's file, which
/// is empty where there is none. Where the backup fails or is cancelled, says so and does not.
void changeWithBackup(PageContext& page, bool isBackupWanted,
                      const std::function<void(const QString& backup)>& change);

/// Removes the backup, if there is one, of a change that has changed nothing.
void removeUnusedBackup(PageContext& page, const QString& backup);
