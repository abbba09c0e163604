#include "fuzz/Expectation.h"
#include "fuzz/FuzzInput.h"
#include "platform/WindowsTypes.h"
#include "regfile/CodePages.h"
#include "regfile/RegFileReader.h"
#include "regfile/RegFileWriter.h"

#include <QBuffer>

#include <vector>

namespace {

std::vector<RegFileEntry> statementsOf(const QByteArray& file, const QByteArray& codePage = {})
{
    RegFileReader reader(file, codePage);
    std::vector<RegFileEntry> statements;
    RegFileEntry entry;
    int line = 0;
    for (auto step = reader.next(entry); step != RegFileReader::Step::End;
         step = reader.next(entry)) {
        if (step != RegFileReader::Step::Statement)
            continue;
        expectThat(entry.line > line, "each statement begins on a line of its own");
        line = entry.line;
        expectThat((entry.action == RegFileEntry::Action::Malformed) == !entry.problem.isEmpty(),
                   "what is malformed, and only that, has a reason");
        statements.push_back(entry);
        entry = {};
    }
    return statements;
}

// What the writer writes: keys and values, no deletions.
std::vector<RegFileEntry> writable(const std::vector<RegFileEntry>& statements)
{
    std::vector<RegFileEntry> kept;
    for (const RegFileEntry& statement : statements) {
        const bool isValue = statement.action == RegFileEntry::Action::SetValue && !kept.empty();
        if (isValue || statement.action == RegFileEntry::Action::CreateKey)
            kept.push_back(statement);
    }
    return kept;
}

QByteArray written(const std::vector<RegFileEntry>& statements, RegFileWriter::Encoding encoding)
{
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    RegFileWriter writer(file, encoding);
    for (const RegFileEntry& statement : statements) {
        if (statement.action == RegFileEntry::Action::CreateKey)
            writer.key(statement.key);
        else if (statement.type == REG_SZ)
            writer.text(statement.name, statement.text);
        else
            writer.bytes(statement.name, statement.type, statement.data);
    }
    expectThat(writer.isGood(), "memory takes whatever is written");
    return file.data();
}

// Whoever reads a text takes it up to its NUL, and one of several lines is written so.
QString readText(const QString& text)
{
    return text.left(text.indexOf(QChar::Null));
}

void expectSame(const RegFileEntry& first, const RegFileEntry& second)
{
    expectThat(first.action == second.action && first.name == second.name, "the same statement");
    expectThat(first.type == second.type && readText(first.text) == readText(second.text),
               "with the same text");
    expectThat(first.data == second.data, "with the same data");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const std::vector<CodePage> codePages = offeredCodePages();
    FuzzInput input(data, size);
    const std::size_t codePage = input.ConsumeIntegralInRange<std::size_t>(0, codePages.size());
    const QByteArray file = QByteArray::fromStdString(input.ConsumeRemainingBytesAsString());
    const auto statements = writable(
        statementsOf(file, codePage < codePages.size() ? codePages[codePage].name : QByteArray()));
    for (const auto encoding : {RegFileWriter::Encoding::Utf16, RegFileWriter::Encoding::Utf8}) {
        const auto again = statementsOf(written(statements, encoding));
        expectThat(again.size() == statements.size(), "as many statements as were written");
        for (std::size_t i = 0; i < again.size(); ++i)
            expectSame(statements[i], again[i]);
    }
    return 0;
}
