#include "fuzz/FuzzInput.h"
#include "fuzz/ScratchFile.h"
#include "platform/PlatformProfileManagerImp.h"

#include <QSettings>
#include <QTextCodec>

#include <vector>

namespace {

struct Entry
{
    std::wstring section;
    std::wstring key;
    std::wstring value;
};

QString nameOf(const Entry& entry)
{
    return QString::fromStdWString(entry.section) + '/' + QString::fromStdWString(entry.key);
}

// The same file through settings of the same kind, in a copy that shares no cache with it.
QString readPlainly(const QByteArray& content, const Entry& entry)
{
    const ScratchFile copy(content);
    QSettings settings(copy.path(), QSettings::IniFormat);
    settings.setIniCodec("utf-8");
    return settings.value(nameOf(entry), QString::fromStdWString(entry.value)).toString();
}

void expectSameReading(const ScratchFile& file, const Entry& entry)
{
    PlatformProfileManagerImp manager;
    const std::wstring path = file.path().toStdWString();
    const std::wstring text = readPlainly(file.content(), entry).toStdWString();
    const std::wstring expected = text.substr(0, text.find(L'\0'));
    const auto size = static_cast<unsigned int>(text.size() + 2);
    // A longer text than expected finds its end behind what the service was given.
    std::vector<wchar_t> buffer(size + 1, L'#');
    buffer.back() = L'\0';
    expectThat(manager.GetPrivateProfileStringW(entry.section.c_str(), entry.key.c_str(),
                                                entry.value.c_str(), buffer.data(), size,
                                                path.c_str()) == expected.size(),
               "a text of the length that plain reading gives");
    expectThat(expected == buffer.data(), "read as by plain reading");
    expectThat(
        manager.GetPrivateProfileIntW(entry.section.c_str(), entry.key.c_str(), 0, path.c_str()) ==
                static_cast<unsigned int>(QString::fromStdWString(text).toInt()) ||
            text == entry.value,
        "the same as a number");
}

// A section never needs more than its lines: escapes only ever shorten.
void listSection(const ScratchFile& file, const Entry& entry)
{
    PlatformProfileManagerImp manager;
    std::vector<wchar_t> buffer(static_cast<std::size_t>(file.content().size()) * 2 + 16);
    const unsigned int count = manager.GetPrivateProfileSectionW(
        entry.section.c_str(), buffer.data(), 0, file.path().toStdWString().c_str());
    expectThat(count >= 1 && count <= buffer.size(), "what was written is counted");
    expectThat(buffer[count - 1] == L'\0', "and ends with a terminator");
}

// Byte for byte what settings of the same kind make of a copy of the file. What a later reading
// gives is theirs too: they lose surrogates, and names with empty parts fall together.
void expectSameWriting(const ScratchFile& file, const Entry& entry)
{
    const ScratchFile copy(file.content());
    PlatformProfileManagerImp manager;
    manager.WritePrivateProfileStringW(entry.section.c_str(), entry.key.c_str(),
                                       entry.value.c_str(), file.path().toStdWString().c_str());
    {
        QSettings settings(copy.path(), QSettings::IniFormat);
        settings.setIniCodec("utf-8");
        settings.setValue(nameOf(entry), QString::fromStdWString(entry.value));
    }
    expectThat(file.content() == copy.content(), "written as plain settings write");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const Entry entry = {input.wideText(), input.wideText(), input.wideText()};
    const bool isWriting = input.ConsumeBool();
    const ScratchFile file(QByteArray::fromStdString(input.ConsumeRemainingBytesAsString()));
    expectSameReading(file, entry);
    listSection(file, entry);
    if (isWriting)
        expectSameWriting(file, entry);
    return 0;
}
