#include "ctl/ByteInput.h"

#include "ctl/Failure.h"
#include "ctl/InputDevice.h"
#include "ctl/Interruption.h"

namespace {

constexpr qint64 pieceSize = qint64{256} * 1024;

using Take = std::function<void(const QByteArray& piece)>;

void readPieces(InputDevice& device, const Take& take)
{
    QByteArray piece(static_cast<int>(pieceSize), Qt::Uninitialized);
    qint64 size = 0;
    while ((size = device.read(piece.data(), pieceSize)) > 0) {
        take(QByteArray::fromRawData(piece.constData(), static_cast<int>(size)));
        Interruption::check();
    }
    Interruption::check();
    if (size < 0)
        throw Failure(
            InputDevice::tr("%1 cannot be read: %2").arg(device.name(), device.errorString()));
}

} // namespace

void ByteInput::read(const QString& name, const Take& take)
{
    InputDevice device(name);
    readPieces(device, take);
}

QByteArray ByteInput::readAll(InputDevice& device)
{
    QByteArray bytes;
    readPieces(device, [&](const QByteArray& piece) { bytes += piece; });
    return bytes;
}
