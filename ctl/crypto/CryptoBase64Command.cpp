#include "ctl/crypto/CryptoBase64Command.h"

#include "crypto/Base64Encoder.h"
#include "crypto/base64/Base64Extent.h"
#include "ctl/ByteInput.h"
#include "ctl/Failure.h"
#include "ctl/Output.h"
#include "ctl/crypto/ByteResult.h"
#include "inspection/crypto/Base64Note.h"

namespace {

constexpr std::size_t bytesOfGroup = 3;
constexpr std::size_t charactersOfGroup = 4;

std::string encoded(const std::string& bytes)
{
    return Base64Encoder::Encode(reinterpret_cast<const unsigned char*>(bytes.data()),
                                 static_cast<unsigned int>(bytes.size()));
}

// Takes what is whole groups from the beginning.
std::string takeGroups(std::string& pending, std::size_t group)
{
    const std::size_t count = pending.size() / group * group;
    std::string groups = pending.substr(0, count);
    pending.erase(0, count);
    return groups;
}

ExitStatus encode(const QString& name, ByteResult& result)
{
    std::string pending;
    ByteInput::read(name, [&](const QByteArray& piece) {
        pending.append(piece.constData(), static_cast<std::size_t>(piece.size()));
        result.put(encoded(takeGroups(pending, bytesOfGroup)));
    });
    result.put(encoded(pending));
    result.commit();
    return ExitStatus::Done;
}

// Decodes up to the first character that is no Base64, as the library does.
class Decoder
{
public:
    explicit Decoder(ByteResult& result) : m_result(result) {}

    void add(const QByteArray& piece)
    {
        m_pending.append(piece.constData(), static_cast<std::size_t>(piece.size()));
        if (base64::extentOf(m_pending).length == m_pending.size())
            takeWhole();
        else if (m_pending.size() > mostEnding)
            m_pending.resize(mostEnding); // what follows cannot change anything
    }
    /// What the library ignores, in words.
    QString finish()
    {
        put(m_pending);
        if (m_size == 0)
            return Base64Note::nothingDecoded();
        base64::Extent extent = base64::extentOf(m_pending);
        extent.length += m_taken;
        return Base64Note::of(extent);
    }
    bool isEmpty() const { return m_size == 0; }

private:
    void takeWhole()
    {
        const std::string groups = takeGroups(m_pending, charactersOfGroup);
        m_taken += groups.size();
        put(groups);
    }

    static constexpr std::size_t mostEnding = std::size_t{1024} * 1024;

    void put(const std::string& characters)
    {
        const std::string bytes = Base64Encoder::Decode(characters);
        m_size += bytes.size();
        m_result.put(bytes);
    }

    ByteResult& m_result;
    std::string m_pending;
    std::size_t m_taken = 0; ///< characters
    std::size_t m_size = 0;  ///< bytes
};

ExitStatus decode(const QString& name, ByteResult& result, const Output& output)
{
    Decoder decoder(result);
    ByteInput::read(name, [&](const QByteArray& piece) { decoder.add(piece); });
    const QString note = decoder.finish();
    if (decoder.isEmpty())
        throw Failure(note);
    result.commit();
    if (note.isEmpty())
        return ExitStatus::Done;
    output.note(note);
    return ExitStatus::No;
}

} // namespace

void CryptoBase64Command::addOptions(QCommandLineParser& parser) const
{
    parser.addOption({QStringLiteral("decode"), tr("Decodes instead of encoding.")});
    ByteResult::addOption(parser);
}

ExitStatus CryptoBase64Command::run(const Arguments& arguments, Output& output)
{
    ByteResult result(arguments, output, ByteResult::Certainty::Sure);
    return arguments.has("decode") ? decode(arguments.at(0), result, output)
                                   : encode(arguments.at(0), result);
}
