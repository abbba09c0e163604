#include "fuzz/FuzzInput.h"
#include "fuzz/ScratchFile.h"
#include "platform/PlatformProfileManagerImp.h"
#include "tests/platform/profiles/PlainNarrowProfile.h"

#include <vector>

namespace {

struct Entry
{
    std::string section;
    std::string key;
    std::string value;
};

QString headerOf(const Entry& entry)
{
    return '[' + QString::fromStdString(entry.section) + ']';
}

void expectSameReading(const ScratchFile& file, const Entry& entry)
{
    PlatformProfileManagerImp manager;
    const QString expected = PlainNarrowProfile(file.path())
                                 .sections()
                                 .value(headerOf(entry))
                                 .value(QString::fromStdString(entry.key));
    const QByteArray bytes = expected.toUtf8();
    std::vector<char> buffer(static_cast<std::size_t>(bytes.size()) + 2, '#');
    manager.GetPrivateProfileStringA(entry.section.c_str(), entry.key.c_str(), "fallback",
                                     buffer.data(), static_cast<unsigned int>(buffer.size()),
                                     file.path().toUtf8());
    expectThat(qstrcmp(buffer.data(), bytes.constData()) == 0, "read as by plain reading");
}

void expectSameRewriting(const ScratchFile& file, const Entry& entry)
{
    PlatformProfileManagerImp manager;
    const ScratchFile plain;
    PlainNarrowProfile profile(file.path());
    profile.set(headerOf(entry), QString::fromStdString(entry.key),
                QString::fromStdString(entry.value));
    for (const char* claim :
         {"rewritten as by plain writing", "nor changed by a second rewriting"}) {
        expectThat(manager.WritePrivateProfileStringA(entry.section.c_str(), entry.key.c_str(),
                                                      entry.value.c_str(),
                                                      file.path().toUtf8()) == 1,
                   "a file can be rewritten");
        expectThat(file.content() == profile.writtenTo(plain.path()), claim);
        profile = PlainNarrowProfile(file.path());
        profile.set(headerOf(entry), QString::fromStdString(entry.key),
                    QString::fromStdString(entry.value));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const Entry entry = {input.text(), input.text(), input.text()};
    const ScratchFile file(QByteArray::fromStdString(input.ConsumeRemainingBytesAsString()));
    expectSameReading(file, entry);
    expectSameRewriting(file, entry);
    return 0;
}
