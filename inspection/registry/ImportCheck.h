#pragma once

#include "inspection/registry/RegistryImport.h"

/// Foretells what the registry service makes of one statement of a registry file.
class ImportCheck
{
    Q_DECLARE_TR_FUNCTIONS(ImportCheck)

public:
    explicit ImportCheck(const RegFileEntry& entry);

    RegistryImport::Verdict verdict() const { return m_verdict; }
    QString remark() const { return m_remarks.join(QLatin1Char(' ')); }

private:
    void refuse(const QString& why);
    void remark(const QString& what);
    void judgeKey();
    void judgeKeyDeletion();
    void judgeValueDeletion(const QString& name);
    void judgeName();
    void judgeData();
    void judgeNumber(int size);

    RegFileEntry m_entry;
    QString m_path;
    RegistryImport::Verdict m_verdict = RegistryImport::Verdict::Done;
    QStringList m_remarks;
};
