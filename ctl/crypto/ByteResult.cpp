#include "ctl/crypto/ByteResult.h"

#include "ctl/Arguments.h"
#include "ctl/Failure.h"
#include "ctl/Interruption.h"
#include "ctl/Output.h"

#include <QTemporaryFile>

namespace {

constexpr qint64 pieceSize = qint64{256} * 1024;

} // namespace

void ByteResult::addOption(QCommandLineParser& parser)
{
    parser.addOption(
        {QStringLiteral("output"), tr("Writes into this file."), QStringLiteral("FILE")});
}

ByteResult::ByteResult(const Arguments& arguments, Output& output, Certainty certainty)
    : m_output(output)
{
    const bool isNamed = arguments.has("output");
    if (!isNamed && output.form() == Output::Form::Json)
        throw Failure(ExitStatus::WrongUsage, tr("With --json, name a file by --output."));
    if (isNamed) {
        m_named.emplace(arguments.value("output"));
        m_file = &m_named->device();
        check(m_named->open());
    } else if (certainty == Certainty::Undecided) {
        m_undecided = std::make_unique<QTemporaryFile>();
        m_file = m_undecided.get();
        check(m_undecided->open());
    }
}

ByteResult::~ByteResult() = default;

void ByteResult::put(const std::string& bytes)
{
    const QByteArray data = QByteArray::fromStdString(bytes);
    if (m_file)
        check(m_file->write(data) == data.size());
    else
        m_output.device().put(data);
}

void ByteResult::commit()
{
    if (m_named)
        check(m_named->commit());
    else if (m_file)
        copyToOutput();
}

void ByteResult::copyToOutput()
{
    check(m_file->flush() && m_file->seek(0));
    QByteArray piece;
    while (!(piece = m_file->read(pieceSize)).isEmpty()) {
        Interruption::check();
        m_output.device().put(piece);
    }
}

void ByteResult::check(bool good) const
{
    if (!good)
        throw Failure(
            tr("%1 cannot be written: %2").arg(m_file->fileName(), m_file->errorString()));
}
