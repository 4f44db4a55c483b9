#include "page/MotsPosologie.h"

namespace page {

namespace {

constexpr qsizetype kPlaceDesMarqueurs = 3;
constexpr QLatin1Char kBlanc(' ');

QString SansBlancsAuBout(QString texte)
{
    while (texte.endsWith(kBlanc)) {
        texte.chop(1);
    }
    return texte;
}

// Half of a character outside the basic plane is no text: the whole of it goes.
void Coupe(QString& mot, int nombre)
{
    mot.chop(nombre);
    if (nombre > 0 && !mot.isEmpty() && mot.back().isHighSurrogate()) {
        mot.chop(1);
    }
}

Mot LitMot(QString mot)
{
    if (mot.isEmpty()) {
        mot = kBlanc;
    }
    if (mot.size() < kPlaceDesMarqueurs) {
        mot.prepend(QLatin1String("  "));
    }
    const QStringView fin = QStringView(mot).last(kPlaceDesMarqueurs);
    Mot lu;
    lu.Gras = fin.contains(QLatin1Char('*'));
    lu.Souligne = fin.contains(QLatin1Char('$'));
    lu.Italique = fin.contains(QChar(u'£'));
    Coupe(mot, lu.Gras + lu.Souligne + lu.Italique);
    lu.Mesure = SansBlancsAuBout(mot);
    return lu;
}

} // namespace

QString Mot::Imprime() const
{
    const QString mot = SansBlancsAuBout(Mesure);
    qsizetype debut = 0;
    while (debut < mot.size() && mot[debut] == kBlanc) {
        ++debut;
    }
    return mot.sliced(debut);
}

QList<Mot> MotsPosologie(const QString& posologie)
{
    QList<Mot> mots;
    for (const QString& mot : posologie.split(kBlanc)) {
        mots.append(LitMot(mot));
    }
    return mots;
}

Police StyleDuMot(Police police, const Mot& mot)
{
    police.Gras = police.Gras || mot.Gras;
    police.Souligne = police.Souligne || mot.Souligne;
    police.Italique = police.Italique || mot.Italique;
    return police;
}

} // namespace page
