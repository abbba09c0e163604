#include "ctl/crypto/CryptoDigestCommand.h"

#include "ctl/Failure.h"
#include "ctl/InputDevice.h"
#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "inspection/crypto/DigestJob.h"
#include "inspection/crypto/DigestNotes.h"

namespace {

void print(const Digests& digests, bool hasSecond, Output& output)
{
    output.begin({Columns::name, Columns::digest});
    output.record({QStringLiteral("sha256"), digests.sha256Hex});
    output.record({QStringLiteral("fingerprint"), digests.fingerprint});
    output.record({QStringLiteral("md5"), digests.md5});
    output.record({QStringLiteral("rfc-md5"), digests.rfcMd5});
    if (hasSecond)
        output.record({QStringLiteral("kd"), digests.kd});
}

} // namespace

void CryptoDigestCommand::addOptions(QCommandLineParser& parser) const
{
    parser.addOption({QStringLiteral("second"),
                      tr("Prints the digest of both this text and the first one, too."),
                      QStringLiteral("TEXT")});
}

ExitStatus CryptoDigestCommand::run(const Arguments& arguments, Output& output)
{
    DigestJob job(std::make_unique<InputDevice>(arguments.at(0)),
                  arguments.value("second").toUtf8());
    finish(job);
    if (!job.error().isEmpty())
        throw Failure(tr("%1 cannot be read: %2").arg(arguments.at(0), job.error()));
    print(job.digests(), arguments.has("second"), output);
    const QStringList notes =
        DigestNotes::of(job.digests()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& note : notes)
        output.note(note);
    return ExitStatus::Done;
}
