#include "app/TextTime.h"

#include <cwchar>

time_t FormatTime(const wchar_t* text)
{
    if (!text)
        return -1;
    std::tm fields{};
    int year = 0;
    int month = 0;
    // The number of fields read is of no interest: those that are missing stay 0.
    static_cast<void>(std::swscanf(text, L"%4d-%2d-%2d %2d:%2d:%2d", &year, &month, &fields.tm_mday,
                                   &fields.tm_hour, &fields.tm_min, &fields.tm_sec));
    fields.tm_mon = month - 1;
    fields.tm_year = year - 1900;
    fields.tm_isdst = -1; // the system decides
    return std::mktime(&fields);
}

QVector<QString> splitString(const QString& text, int length)
{
    if (length <= 0)
        return {};
    QVector<QString> pieces;
    // 64 bits: rounding up would overflow an int for lengths close to its limit.
    const qint64 step = length;
    pieces.reserve(static_cast<int>((text.size() + step - 1) / step));
    for (qint64 start = 0; start < text.size(); start += step)
        pieces.append(text.mid(static_cast<int>(start), length));
    return pieces;
}
