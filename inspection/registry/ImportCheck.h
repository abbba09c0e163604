#pragma once

#include "regfile/RegFileEntry.h"

#include <QCoreApplication>
#include <QStringList>

/// Foretells what the registry service makes of one statement of a registry file.
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

    explicit ImportCheck(const RegFileEntry& entry);

    Outcome outcome() const { return m_outcome; }
    QString remark() const { return m_remarks.join(QLatin1Char(' ')); }

private:
    void refuse(const QString& why);
    void remark(const QString& what);
    void checkKey();
    void checkKeyDeletion();
    void checkValueDeletion(const QString& name);
    void checkName();
    void checkData();
    void checkNumber(int size);

    RegFileEntry m_entry;
    QString m_path;
    Outcome m_outcome = Outcome::Done;
    QStringList m_remarks;
};
