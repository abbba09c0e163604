#pragma once

#include "regfile/RegFileReader.h"

#include <QCoreApplication>

#include <memory>
#include <vector>

class RegistryRemoval;

/// What an import would do, statement by statement, and the doing. Both step by step, for sliced
/// jobs: first `read`, then, when the user has seen `items`, `apply`.
class RegistryImport
{
    Q_DECLARE_TR_FUNCTIONS(RegistryImport)

public:
    enum class Verdict
    {
        Done,    ///< as the file says
        Altered, ///< otherwise than the file says: see `remark`
        Refused  ///< not at all: see `remark`
    };

    struct Item
    {
        RegFileEntry entry;
        Verdict verdict = Verdict::Done;
        QString remark;
    };

    /// `file` is open for reading.
    explicit RegistryImport(std::unique_ptr<QIODevice> file);
    /// A file that is in memory already.
    explicit RegistryImport(const QByteArray& file);
    ~RegistryImport();

    /// Why the whole file is refused, in words; empty when it can be read, as far as it is known
    /// yet.
    QString error() const { return m_reader.error(); }

    /// Reads one statement or a small piece of the file; false at the end.
    bool read();
    const std::vector<Item>& items() const { return m_items; }
    int count(Verdict verdict) const;

    /// Carries out one statement that is not refused, or a small piece of one that deletes a key;
    /// false at the end.
    bool apply();
    /// How many statements have been carried out, and how many the service failed.
    int applied() const { return m_applied; }
    int failed() const { return m_failed; }

    /// What becomes of one statement.
    static Item judged(const RegFileEntry& entry);

private:
    static bool carryOut(const RegFileEntry& entry);
    void beginRemoval(const RegFileEntry& entry);
    void removeOn();
    void count(bool done) { ++(done ? m_applied : m_failed); }

    RegFileReader m_reader;
    std::vector<Item> m_items;
    std::size_t m_next = 0;
    std::unique_ptr<RegistryRemoval> m_removal; ///< under way
    int m_applied = 0;
    int m_failed = 0;
};
