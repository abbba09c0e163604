#include "tools/pictures/DemoRecording.h"

#include "tests/support/MadeRecording.h"

namespace {

using Made = MadeRecording;

Made::Call from(Made::Call call, const char* caller)
{
    call.caller = caller;
    return call;
}

Made::Call profile(const QByteArray& home, const QByteArray& key, const QByteArray& fallback,
                   const QByteArray& answer)
{
    return from({"profile", "GetPrivateProfileStringW",
                 "{\"section\":{\"text\":\"Scanner\"},\"key\":{\"text\":\"" + key +
                     "\"},\"fallback\":{\"text\":\"" + fallback +
                     "\"},\"buffer\":{\"pointer\":\"0x7ffd10\"},\"size\":64,\"file\":{\"text\":\"" +
                     home + "/scanner.ini\"}}",
                 QByteArray::number(answer.size()), "{\"buffer\":{\"text\":\"" + answer + "\"}}"},
                "libscanner.so+0x2c40");
}

Made::Call search(const QByteArray& pattern, const QByteArray& found)
{
    return from({"directory", "findFirstFile",
                 "{\"pattern\":{\"text\":\"" + pattern + "\"},\"data\":{\"pointer\":\"0x7ffd20\"}}",
                 "{\"handle\":\"0x55d0\"}",
                 "{\"data\":{\"dwFileAttributes\":32,\"cFileName\":\"" + found + "\"}}"},
                "libreports.so+0x09d1");
}

} // namespace

QByteArray demoRecording(const QByteArray& home)
{
    const char* const crane = "libcrane.so+0x1a2b";
    const QByteArray root("HKEY_CURRENT_USER");
    return Made()
        .add(from(Made::open(root, "Harbour/Crane", "0x55c0"), crane))
        .add(from(Made::query("0x55c0", "Baud rate", "00c20100"), crane))
        .add(from(Made::query("0x55c0", "Brake test", ""), crane))
        .add(from(Made::query("0x55c0", "Brake test", ""), crane))
        .add(from(Made::open("0x55c0", "Axis 1", "0x55c8"), crane))
        .add(from(Made::query("0x55c8", "Gain", "fa000000"), crane))
        .add(from(Made::close("0x55c8"), crane))
        .add(from(Made::open("0x55c0", "Axis 3", ""), crane))
        .add(profile(home, "Port", "COM1", "COM3"))
        .add(profile(home, "Parity", "none", "none"))
        .add(search(home + "/orders/*", "2026-02.csv"))
        .add(from({"directory", "findNextFile",
                   "{\"search\":{\"handle\":\"0x55d0\"},\"data\":{\"pointer\":\"0x7ffd20\"}}", "1",
                   "{\"data\":{\"dwFileAttributes\":32,\"cFileName\":\"README.TXT\"}}"},
                  "libreports.so+0x0a17"))
        .add(from({"message", "messageBox",
                   "{\"owner\":null,\"text\":{\"text\":\"Brake test is due.\"},\"caption\":{"
                   "\"text\":\"Crane\"},\"style\":0}",
                   "1"},
                  crane))
        .addBytes(Made::begun(14, from(Made::close("0x55c0"), crane)))
        .bytes();
}
