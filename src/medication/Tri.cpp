#include "medication/Tri.h"

#include <algorithm>
#include <vector>

namespace medication {

namespace {

constexpr qsizetype kTete = 8;

struct Place
{
    quint64 Tete = 0; // the first eight characters of the key, the first one on top
    qsizetype Rang = 0;
};

constexpr char16_t CapitaleAscii(char16_t c)
{
    return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - u'a' + u'A') : c;
}

constexpr bool EstAscii(QChar c)
{
    return c.unicode() < 0x80;
}

void AjouteSansAccent(QString& cle, QChar capitale)
{
    if (capitale.unicode() < 0x80) {
        cle += capitale;
    } else if (capitale == u'Œ') {
        cle += QLatin1String("OE");
    } else if (capitale == u'Æ') {
        cle += QLatin1String("AE");
    } else {
        const QString parties =
            capitale.decompositionTag() == QChar::Canonical ? capitale.decomposition() : QString();
        cle += parties.isEmpty() ? capitale : parties.front();
    }
}

// One byte a character; those beyond a byte are told apart by `CompareCles`.
quint64 TeteDe(QStringView texte)
{
    QStringView debut = texte.left(kTete);
    QString cle;
    if (!std::ranges::all_of(debut, EstAscii)) {
        cle = CleTri(debut);
        debut = cle;
    }
    quint64 tete = 0;
    for (qsizetype i = 0; i < kTete; ++i) {
        const char16_t c = i < debut.size() ? CapitaleAscii(debut[i].unicode()) : char16_t(0);
        tete = tete << 8 | std::min<char16_t>(c, 0xFF);
    }
    return tete;
}

// As the keys compare, without making them while both texts are the same plain letters.
int CompareCles(QStringView a, QStringView b)
{
    const qsizetype commun = std::min(a.size(), b.size());
    qsizetype i = 0;
    while (i < commun && EstAscii(a[i]) && EstAscii(b[i])) {
        const int ecart = CapitaleAscii(a[i].unicode()) - CapitaleAscii(b[i].unicode());
        if (ecart != 0) {
            return ecart;
        }
        ++i;
    }
    return CleTri(a.sliced(i)).compare(CleTri(b.sliced(i)));
}

QList<Noeud> DansLOrdre(QList<Noeud>& noeuds, const std::vector<Place>& places)
{
    QList<Noeud> tries;
    tries.reserve(noeuds.size());
    for (const Place& place : places) {
        tries.append(std::move(noeuds[place.Rang]));
    }
    return tries;
}

} // namespace

QString Capitales(QStringView texte)
{
    QString capitales(texte.size(), Qt::Uninitialized);
    std::ranges::transform(texte, capitales.begin(), [](QChar c) { return c.toUpper(); });
    return capitales;
}

QString CleTri(QStringView texte)
{
    QString cle;
    cle.reserve(texte.size());
    for (const QChar c : texte) {
        AjouteSansAccent(cle, c.toUpper());
    }
    return cle;
}

void Trie(QList<Noeud>& noeuds)
{
    std::vector<Place> places(static_cast<std::size_t>(noeuds.size()));
    for (qsizetype rang = 0; rang < noeuds.size(); ++rang) {
        places[static_cast<std::size_t>(rang)] = {TeteDe(noeuds[rang].Texte), rang};
    }
    std::ranges::sort(places, [&](const Place& a, const Place& b) {
        if (a.Tete != b.Tete) {
            return a.Tete < b.Tete;
        }
        const QString& texteA = noeuds[a.Rang].Texte;
        const QString& texteB = noeuds[b.Rang].Texte;
        if (const int ordre = CompareCles(texteA, texteB); ordre != 0) {
            return ordre < 0;
        }
        const int ordre = texteA.compare(texteB);
        return ordre != 0 ? ordre < 0 : a.Rang < b.Rang;
    });
    noeuds = DansLOrdre(noeuds, places);
}

} // namespace medication
