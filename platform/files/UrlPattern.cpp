#include "platform/files/UrlPattern.h"

#include <QStringView>

#include <algorithm>
#include <array>

namespace {

// What a URL may hold after the scheme, and what it may end with.
enum CharacterKind : unsigned char
{
    Foreign,
    Inner,
    Last
};

using CharacterKinds = std::array<CharacterKind, 128>;

constexpr CharacterKinds characterKinds()
{
    CharacterKinds kinds{};
    for (const char c : "?!:,.;")
        kinds[static_cast<unsigned char>(c)] = Inner;
    for (const char c : "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-+&@#/%=~_|")
        kinds[static_cast<unsigned char>(c)] = Last;
    kinds[0] = Foreign; // the terminator of the literals above is no character of a URL
    return kinds;
}

CharacterKind kindOf(QChar character)
{
    static constexpr CharacterKinds kinds = characterKinds();
    const ushort code = character.unicode();
    return code < kinds.size() ? kinds[code] : Foreign;
}

// What follows the scheme and "://"; empty: no such scheme.
QStringView afterScheme(QStringView text)
{
    for (const QStringView scheme : {u"http://", u"https://", u"ftp://", u"file://"}) {
        if (text.startsWith(scheme))
            return text.mid(scheme.size());
    }
    return {};
}

} // namespace

bool matchesUrlPattern(const QString& text)
{
    const QStringView rest = afterScheme(text);
    return rest.size() >= 2 && kindOf(rest.last()) == Last &&
           std::all_of(rest.begin(), rest.end(), [](QChar c) { return kindOf(c) != Foreign; });
}
