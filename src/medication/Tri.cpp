#include "medication/Tri.h"

#include <algorithm>
#include <vector>

namespace medication {

namespace {

struct Place
{
    quint64 Tete = 0; // the first four characters of the key, the first one on top
    QString Cle;
    qsizetype Rang = 0;
};

quint64 TeteDe(const QString& cle)
{
    quint64 tete = 0;
    for (qsizetype i = 0; i < 4; ++i) {
        tete = tete << 16 | (i < cle.size() ? cle[i].unicode() : 0u);
    }
    return tete;
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
        const QString cle = CleTri(noeuds[rang].Texte);
        places[static_cast<std::size_t>(rang)] = {TeteDe(cle), cle, rang};
    }
    std::ranges::sort(places, [&](const Place& a, const Place& b) {
        if (a.Tete != b.Tete) {
            return a.Tete < b.Tete;
        }
        if (const int ordre = a.Cle.compare(b.Cle); ordre != 0) {
            return ordre < 0;
        }
        const int ordre = noeuds[a.Rang].Texte.compare(noeuds[b.Rang].Texte);
        return ordre != 0 ? ordre < 0 : a.Rang < b.Rang;
    });
    noeuds = DansLOrdre(noeuds, places);
}

} // namespace medication
