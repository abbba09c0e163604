#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <variant>

/// The data of a value as the registry service hands it out: a DWORD, a QWORD, bytes, or UTF-32
/// without a terminator.
using StoredData = std::variant<qint32, qint64, QByteArray, QVector<uint>>;

/// What decoding makes of a payload other than it was meant.
enum class PayloadFault
{
    None,
    BadNumber,    ///< read as 0
    BadDigits,    ///< what is not hexadecimal is skipped
    MissingDigit, ///< an odd number of hexadecimal digits: the first byte has one of its own
};

/// How the values of a type are kept as text in the settings store: a tag, "$" and a payload.
struct StoredTag
{
    /// Stands between the tag and the payload.
    static constexpr QLatin1Char separator{'$'};

    int number;
    /// The Windows type that is read back, and another one that is written with this tag as well;
    /// the same where there is none.
    unsigned int type;
    unsigned int otherType;

    /// Makes the payload of `size` bytes of data, which is not null; false where the data is
    /// refused. Null for a tag that is read only.
    bool (*encode)(const unsigned char* data, unsigned int size, QString& payload);
    /// Writes what a payload stands for into `data`, in place: a host library waits for it.
    void (*decode)(const QStringRef& payload, StoredData& data);
    PayloadFault (*fault)(const QStringRef& payload);

    /// True where the caller's size has to suffice even without a buffer.
    bool measuresWithoutBuffer;
    /// True where the caller's size has to be larger than the data.
    bool wantsTerminator;

    /// Null for a number that is no tag.
    static const StoredTag* ofNumber(int number);
    /// Null for a type that cannot be written.
    static const StoredTag* ofWrittenType(unsigned int type);
};
