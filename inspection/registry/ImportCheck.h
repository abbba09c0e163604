#pragma once

#include "regfile/RegFileEntry.h"

#include <QCoreApplication>
#include <QStringList>

/// Tells what the registry service will make of one statement of a registry file, before it is
/// carried out. Nothing is written.
class ImportCheck
{
    Q_DECLARE_TR_FUNCTIONS(ImportCheck)

public:
    enum class Outcome
    {
        Done,    ///< as the file says
        Altered, ///< otherwise than the file says: see `remark`
        Refused  ///< not at all: see `remark`
    };

    /// Checks against the store as it is now.
    explicit ImportCheck(const RegFileEntry& entry);

    Outcome outcome() const { return m_outcome; }
    /// What is altered, or why the statement is refused, in sentences; empty for Done.
    QString remark() const { return m_remarks.join(QLatin1Char(' ')); }

    /// The data that RegSetValueExW gets for a statement that sets a value; a text has its
    /// terminator, and a value without type and data is the number 0.
    static QByteArray dataToSet(const RegFileEntry& entry);

private:
    void refuse(const QString& why);
    void remark(const QString& what);
    void checkKey();
    void checkKeyDeletion();
    void checkValueDeletion(const QString& name);
    void checkName();
    void checkData();

    RegFileEntry m_entry;
    QString m_path;
    Outcome m_outcome = Outcome::Done;
    QStringList m_remarks;
};
