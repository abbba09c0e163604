#pragma once

#include "inspection/OutputFile.h"

#include <QByteArray>
#include <QCoreApplication>

#include <memory>
#include <optional>

class Arguments;
class Output;
class QCommandLineParser;
class QTemporaryFile;

/// Where the bytes of a result go: the file of the option --output, which is replaced only when it
/// is whole, or the standard output.
class ByteResult
{
    Q_DECLARE_TR_FUNCTIONS(ByteResult)

public:
    enum class Certainty
    {
        Sure,      ///< nothing can be wrong with what has been put
        Undecided, ///< the end may tell that nothing of it is of use: the output gets it at the end
    };

    static void addOption(QCommandLineParser& parser);

    /// Throws a Failure where the file cannot be written, or where the output is a document.
    ByteResult(const Arguments& arguments, Output& output, Certainty certainty);
    ~ByteResult();

    void put(const std::string& bytes);
    /// Puts the file in its place, or the bytes on the standard output.
    void commit();

private:
    void check(bool good) const;
    void copyToOutput();

    Output& m_output;
    std::optional<OutputFile> m_named;
    std::unique_ptr<QTemporaryFile> m_undecided;
    QFileDevice* m_file = nullptr; ///< one of the two; null for the standard output
};
