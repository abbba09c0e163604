#pragma once

#include "inspection/Job.h"
#include "inspection/registry/ImportPlan.h"
#include "regfile/RegFileReader.h"

#include <QCoreApplication>

#include <memory>
#include <optional>

/// Reads a registry file into a plan of what importing it will do. Writes nothing: RegistryApplyJob
/// carries the plan out.
class RegistryImportJob : public Job
{
    Q_DECLARE_TR_FUNCTIONS(RegistryImportJob)

public:
    /// `file` is open for reading; `codePage` is that of a file of version 4, see RegFileReader.
    /// All keys of the file are taken to be below the key of the path `prefix`.
    explicit RegistryImportJob(std::unique_ptr<QIODevice> file, const QByteArray& codePage = {},
                               const QString& prefix = {});
    /// A file that is in memory already, as those of the tests are.
    explicit RegistryImportJob(const QByteArray& file, const QByteArray& codePage = {});

    /// Reads one statement or a small piece of the file, or compares a statement with the store.
    bool step() override;
    /// The number of statements read.
    QString progress() const override;

    /// Why the whole file is refused, in words; empty when it can be read, as far as it is known
    /// yet.
    QString error() const;
    /// What the file says of its encoding; complete once the job is done.
    const RegFileReader& reader() const { return m_reader; }
    /// Shared with who shows it and who carries it out; complete once the job is done.
    std::shared_ptr<const ImportPlan> plan() const { return m_plan; }

private:
    bool readOn();
    void addPrefix(RegFileEntry& entry) const;

    RegFileReader m_reader;
    QString m_prefix;
    std::optional<RegFileEntry> m_statement; ///< read, and still to be added to the plan
    std::shared_ptr<ImportPlan> m_plan = std::make_shared<ImportPlan>();
    bool m_isTooLarge = false;
};
