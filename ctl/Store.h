#pragma once

#include "inspection/registry/StoreReplacement.h"

#include <QCoreApplication>

#include <optional>

/// The store that the commands work on: the host library's own after it has been given the services
/// as the application gives them, or a file in its place.
class Store
{
    Q_DECLARE_TR_FUNCTIONS(Store)

public:
    /// An empty `file` is the host library's store. Throws a Failure where there is no store, where
    /// it cannot be read, and where a file that `mustExist` is not there.
    Store(const QString& file, bool mustExist);

    /// What tells that the file has lines that are no entries; empty for a sound store. Reads all
    /// of the store.
    static QString damage();
    /// Takes over what other programs have saved meanwhile. Throws a Failure where that is not
    /// possible.
    static void reread();
    /// Throws a Failure where `file`, which is to be written, is the store's own file.
    static void refuseOwnFile(const QString& file);
    /// Saves the store at once, when no other program has it locked. Throws a Failure where that is
    /// not possible, and where the user does not wait so long.
    static void save();

private:
    static void waitForLock();
    static void check(bool mustExist, bool isFile);

    std::optional<StoreReplacement> m_replacement;
};
