#pragma once

#include "platform/files/FileStamp.h"
#include "platform/files/SecondName.h"

#include <QString>

/// One saving of the store, from before it: where the disk is full, QSettings puts half a file in
/// the place of the one that there was, and takes that for success. There must be a store.
class StoreSaving
{
public:
    /// Keeps the file that there is under a second name, for as long as it lives.
    StoreSaving();

    bool hadFile() const { return m_before.exists(); }
    /// True when another file has been put in the place of that one.
    bool hasWritten() const;
    /// True when the file that is there now holds everything that the store holds. Parses it, which
    /// takes as long as the store is large.
    bool isWhole() const;
    /// Puts the former file back; where there was none, removes the new one.
    void undo() const;

    /// The store's file, in the place where a link leads to.
    const QString& file() const { return m_file; }

private:
    QString m_file;
    SecondName m_former;
    FileStamp m_before; ///< taken under both names: a name more changes it
};

/// Saves the store at once, so that its file is whole afterwards. False where not everything could
/// be saved; the file is then the one that there was.
bool saveStore();
