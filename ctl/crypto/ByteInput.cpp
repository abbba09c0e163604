#include "ctl/crypto/ByteInput.h"

#include "ctl/Failure.h"
#include "ctl/Interruption.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <unistd.h>

namespace {

constexpr qint64 pieceSize = qint64{256} * 1024;

struct ByteInputTexts
{
    Q_DECLARE_TR_FUNCTIONS(ByteInput)
};

[[noreturn]] void fail(const QString& name, const QString& reason)
{
    throw Failure(ByteInputTexts::tr("%1 cannot be read: %2").arg(name, reason));
}

std::unique_ptr<QFile> openedFile(const QString& name)
{
    const bool isInput = name.isEmpty() || name == QLatin1String("-");
    auto file = std::make_unique<QFile>(name);
    if (!(isInput ? file->open(STDIN_FILENO, QIODevice::ReadOnly)
                  : file->open(QIODevice::ReadOnly)))
        fail(name, file->errorString());
    return file;
}

} // namespace

std::unique_ptr<QIODevice> ByteInput::opened(const QString& name)
{
    return openedFile(name);
}

void ByteInput::read(const QString& name, const std::function<void(const QByteArray&)>& take)
{
    const std::unique_ptr<QFile> device = openedFile(name);
    QByteArray piece(static_cast<int>(pieceSize), Qt::Uninitialized);
    qint64 size = 0;
    while ((size = Interruption::read(device->handle(), piece.data(), pieceSize)) > 0) {
        take(QByteArray::fromRawData(piece.constData(), static_cast<int>(size)));
    }
    if (size < 0)
        fail(name, qt_error_string(errno));
    Interruption::check();
}
