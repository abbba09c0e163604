#pragma once

#include <QByteArray>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A test that runs quaysidectl with a store of its own, in a folder of its own.
class CtlTest : public testing::Test
{
protected:
    struct Result
    {
        int status = -1; ///< -1 where the program has crashed
        QByteArray out;
        QByteArray error;
    };

    /// Runs the program in the folder; `input` is its standard input.
    Result run(const QStringList& arguments, const QByteArray& input = {}) const;
    /// The same through the shell, in which "$CTL" is the program.
    Result shell(const QString& script) const;
    /// The status alone.
    int status(const QStringList& arguments) const { return run(arguments).status; }
    /// The output alone.
    QByteArray out(const QStringList& arguments) const { return run(arguments).out; }

    /// How the program is started: the installed one where QUAYSIDE_CTL_PROGRAM names it, otherwise
    /// the one that has been built; behind its emulator where it needs one.
    static QStringList program();
    static bool isEmulated() { return qstrlen(QUAYSIDE_EMULATOR) > 0; }
    /// The sanitizers keep what is freed, and make each allocation many times as slow.
    static bool isSanitized() { return QUAYSIDE_SANITIZED; }
    /// As many values as are to be no trouble; fewer where each takes many times as long.
    static int manyValues() { return isEmulated() || isSanitized() ? 10000 : 100000; }

    QString path(const QString& name) const { return m_folder.filePath(name); }
    void write(const QString& name, const QByteArray& bytes) const;
    QByteArray read(const QString& name) const;
    /// The file of the usual store.
    QByteArray storeBytes() const { return read(storeName()); }
    void writeStore(const QByteArray& bytes) const { write(storeName(), bytes); }

private:
    static QString storeName() { return QStringLiteral("data/quayside/registry.ini"); }

    QTemporaryDir m_folder;
};
