#pragma once

#include <QStringView>

namespace page {

/// The character at `place`, which moves behind it; two halves of a pair count as one, a lone half as itself.
inline char32_t LitCaractere(QStringView texte, qsizetype& place)
{
    const QChar premier = texte[place++];
    if (premier.isHighSurrogate() && place < texte.size() && texte[place].isLowSurrogate()) {
        return QChar::surrogateToUcs4(premier, texte[place++]);
    }
    return premier.unicode();
}

} // namespace page
