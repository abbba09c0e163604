#include "fuzz/Expectation.h"
#include "fuzz/FuzzInput.h"
#include "platform/PlatformRegisterManagerImp.h"

#include <QVariant>

#include <cstring>
#include <vector>

namespace {

// A caller's three out-parameters, each of which may be missing.
struct Request
{
    bool hasType;
    bool hasData;
    bool hasSize;
    unsigned int size;
};

struct Answer
{
    bool isGiven = false;
    unsigned int type = 77;
    unsigned int size = 0;
    std::vector<unsigned char> data;

    bool operator==(const Answer& other) const
    {
        return isGiven == other.isGiven && type == other.type && size == other.size &&
               data == other.data;
    }
};

template <typename Number>
std::vector<unsigned char> bytesOf(Number number)
{
    std::vector<unsigned char> bytes(sizeof number);
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

std::vector<unsigned char> bytesOf(const QString& text)
{
    const QVector<uint> units = text.toUcs4();
    std::vector<unsigned char> bytes(static_cast<std::size_t>(units.size()) * sizeof(uint));
    if (!bytes.empty())
        std::memcpy(bytes.data(), units.constData(), bytes.size());
    return bytes;
}

std::vector<unsigned char> bytesOf(const QByteArray& array)
{
    return {array.begin(), array.end()};
}

// The rules of decoding, one tag after the other. Intended: see the tags of stored values.
Answer answeredPlainly(const QString& stored, const Request& request, std::size_t room)
{
    Answer answer;
    answer.size = request.size;
    answer.data.assign(room, 0xCD);
    const int dollar = stored.indexOf('$');
    bool isNumber = false;
    const int tag = dollar > 0 ? stored.leftRef(dollar).toInt(&isNumber) : -1;
    if (!isNumber || tag < 0 || tag > 5 || tag == 3)
        return answer;
    const QString payload = stored.mid(dollar + 1);
    const bool isDword = tag < 2;
    const auto value = isDword    ? bytesOf(payload.toInt())
                       : tag == 2 ? bytesOf(payload.toLongLong())
                       : tag == 4 ? bytesOf(QByteArray::fromHex(payload.toLatin1()))
                                  : bytesOf(payload);
    if (request.hasType)
        answer.type = isDword ? 4 : tag == 2 ? 11 : tag == 4 ? 3 : 1;
    const bool isMeasured = request.hasSize && (request.hasData || !isDword);
    if (isMeasured && value.size() + (tag == 5 ? 1 : 0) > request.size)
        return answer;
    answer.isGiven = true;
    if (request.hasData)
        std::copy(value.begin(), value.end(), answer.data.begin());
    if (request.hasSize)
        answer.size = static_cast<unsigned int>(value.size());
    return answer;
}

Answer answered(const QString& stored, const Request& request, std::size_t room)
{
    Answer answer;
    answer.size = request.size;
    answer.data.assign(room, 0xCD);
    QVariant value = stored;
    answer.isGiven = QVarToRegValue(value, request.hasType ? &answer.type : nullptr,
                                    request.hasData ? answer.data.data() : nullptr,
                                    request.hasSize ? &answer.size : nullptr);
    return answer;
}

void expectWrittenValueToBeRead(unsigned int type, std::vector<unsigned char> data)
{
    const auto size = static_cast<unsigned int>(data.size());
    data.resize(data.size() / 4 * 4 + 8); // a text is read up to its NUL
    QVariant stored;
    if (!RegValueToQVar(stored, type, data.data(), size))
        return;
    const Request all = {true, true, false, 0};
    const Answer answer = answered(stored.toString(), all, 16 * data.size());
    expectThat(answer.isGiven, "what was written can be read");
    expectThat(answer.type == (type == 0 ? 4 : type), "as the type that was written");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const Request request = {input.ConsumeBool(), input.ConsumeBool(), input.ConsumeBool(),
                             input.ConsumeIntegralInRange(1U, 300U)};
    const auto type = input.ConsumeIntegralInRange(0U, 13U);
    const std::string rest = input.ConsumeRemainingBytesAsString();
    const QString stored = QString::fromStdString(rest);
    // A caller without a size has to bring room for whatever there is.
    const std::size_t room =
        request.hasSize ? request.size : static_cast<std::size_t>(stored.size()) * 4 + 8;
    expectThat(answered(stored, request, room) == answeredPlainly(stored, request, room),
               "decoded as by the plain rules");
    expectWrittenValueToBeRead(type, {rest.begin(), rest.end()});
    return 0;
}
