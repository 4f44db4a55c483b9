#include "common/Texte8.h"

#include <algorithm>
#include <array>

namespace common {

namespace {

constexpr std::array<char16_t, 32> kHaut = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                            0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The byte of a character, or -1.
int Octet(char16_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
        return c;
    }
    const auto place = std::ranges::find(kHaut, c);
    return place == kHaut.end() ? -1 : 0x80 + static_cast<int>(place - kHaut.begin());
}

} // namespace

QByteArray VersWindows1252(QStringView texte)
{
    QByteArray octets;
    octets.reserve(texte.size());
    for (qsizetype i = 0; i < texte.size(); ++i) {
        const int octet = Octet(texte[i].unicode());
        octets.append(octet < 0 ? '?' : static_cast<char>(octet));
        if (texte[i].isHighSurrogate() && i + 1 < texte.size() && texte[i + 1].isLowSurrogate()) {
            ++i;
        }
    }
    return octets;
}

bool TientEnWindows1252(QStringView texte)
{
    return std::ranges::all_of(texte, [](QChar c) { return Octet(c.unicode()) >= 0; });
}

QString DepuisWindows1252(QByteArrayView octets)
{
    QString texte(octets.size(), Qt::Uninitialized);
    std::ranges::transform(octets, texte.begin(), [](char c) {
        const auto octet = static_cast<unsigned char>(c);
        return QChar(octet >= 0x80 && octet < 0xA0 ? kHaut[octet - 0x80] : char16_t(octet));
    });
    return texte;
}

} // namespace common
