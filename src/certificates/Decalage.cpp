#include "certificates/Decalage.h"

#include <QStringList>

#include <algorithm>

namespace certificates {

namespace {

constexpr QLatin1String kDeuxBlancs("  ");
constexpr QLatin1String kFinDeLigne("\r\n");

/// The lines as a reader of text files gives them: an end of line at the end of the text begins none.
QStringList Lignes(QString texte)
{
    texte.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    QStringList lignes = texte.split(u'\n');
    if (lignes.constLast().isEmpty()) {
        lignes.removeLast();
    }
    return lignes;
}

} // namespace

QString DecaleADroite(const QString& texte)
{
    QString decale;
    for (const QString& ligne : Lignes(texte)) {
        decale += kDeuxBlancs + ligne + kFinDeLigne;
    }
    return decale;
}

bool PeutDecalerAGauche(const QString& texte)
{
    return std::ranges::all_of(
        Lignes(texte), [](const QString& ligne) { return ligne.isEmpty() || ligne.startsWith(kDeuxBlancs); });
}

QString DecaleAGauche(const QString& texte)
{
    QString decale;
    for (const QString& ligne : Lignes(texte)) {
        decale += ligne.sliced(std::min<qsizetype>(ligne.size(), kDeuxBlancs.size())) + kFinDeLigne;
    }
    return decale;
}

} // namespace certificates
