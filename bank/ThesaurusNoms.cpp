#include "bank/ThesaurusNoms.h"

#include "common/CleDeTri.h"

#include <QRegularExpression>
#include <QStringList>

namespace banque {

namespace {

QSet<QString> Mots(const char16_t* liste)
{
    const QStringList mots = QString::fromUtf16(liste).split(u' ', Qt::SkipEmptyParts);
    return {mots.begin(), mots.end()};
}

/// The acids whose salts and esters act as the substance that they carry.
const QSet<QString>& Sels()
{
    static const QSet<QString> sels = Mots(
        u"CHLORHYDRATE DICHLORHYDRATE MONOCHLORHYDRATE BROMHYDRATE IODHYDRATE MALEATE HYDROGENOMALEATE "
        u"DIMALEATE FUMARATE HEMIFUMARATE HYDROGENOFUMARATE SULFATE HEMISULFATE BISULFATE HYDROGENOSULFATE "
        u"DISULFATE TARTRATE HEMITARTRATE BITARTRATE DITARTRATE HYDROGENOTARTRATE CITRATE DICITRATE "
        u"PHOSPHATE DIPHOSPHATE TETRAPHOSPHATE HEMIPHOSPHATE ACETATE DIACETATE TRIACETATE MESILATE "
        u"DIMESILATE MESYLATE METHANESULFONATE BESILATE BESYLATE TOSILATE DITOSILATE TOSYLATE SUCCINATE "
        u"HEMISUCCINATE HYDROGENOSUCCINATE OXALATE HYDROGENOOXALATE LACTATE MALATE HYDROGENOMALATE PAMOATE "
        u"EMBONATE NITRATE BROMURE CHLORURE DICHLORURE IODURE DIISETIONATE ISETIONATE ESILATE "
        u"EDISILATE NAPSILATE ADIPATE BENZOATE GLUCONATE DIGLUCONATE XINAFOATE FUROATE PIVALATE VALERATE "
        u"PROPIONATE DIPROPIONATE BUTYRATE CAPROATE DECANOATE ENANTATE UNDECANOATE UNDECYLATE PALMITATE "
        u"METASULFOBENZOATE "
        u"TEBUTATE ACETONIDE HEXACETONIDE STEARATE ETHYLSUCCINATE ESTOLATE TEOCLATE HIPPURATE CAMSILATE "
        u"CAMSYLATE CARBONATE BICARBONATE RESINATE POLISTIREX TANNATE METHYLSULFATE METILSULFATE FENDIZOATE "
        u"HYBENZATE");
    return sels;
}

/// What follows the name of a substance without changing it.
const QSet<QString>& Suites()
{
    static const QSet<QString> suites = Mots(
        u"SODIQUE MONOSODIQUE DISODIQUE TRISODIQUE POTASSIQUE MONOPOTASSIQUE DIPOTASSIQUE CALCIQUE "
        u"HEMICALCIQUE MAGNESIQUE ANHYDRE HYDRATE HYDRATEE MONOHYDRATE MONOHYDRATEE HEMIHYDRATE "
        u"HEMIHYDRATEE DIHYDRATE DIHYDRATEE TRIHYDRATE TRIHYDRATEE TETRAHYDRATE PENTAHYDRATE HEXAHYDRATE "
        u"HEPTAHYDRATE SESQUIHYDRATE HEMIPENTAHYDRATE HEMIHEPTAHYDRATE BASE MICRONISE MICRONISEE ARGININE "
        u"ERBUMINE TERTBUTYLAMINE LYSINE TROMETAMOL DIETHYLAMINE EPOLAMINE MEGLUMINE OLAMINE CRISTALLISE "
        u"CRISTALLISEE NEBULISE");
    return suites;
}

const QStringList& SuitesEnDeuxMots()
{
    static const QStringList suites = {
        QStringLiteral(" DE SODIUM"),    QStringLiteral(" DE POTASSIUM"),    QStringLiteral(" DE CALCIUM"),
        QStringLiteral(" DE LYSINE"),    QStringLiteral(" DE DIETHYLAMINE"), QStringLiteral(" D ARGININE"),
        QStringLiteral(" DE MEGLUMINE"),
    };
    return suites;
}

/// What is a salt of itself everywhere, so that no salt tells of it.
const QSet<QString>& Elements()
{
    static const QSet<QString> elements = Mots(
        u"FER CALCIUM ZINC MAGNESIUM POTASSIUM SODIUM ALUMINIUM FLUOR IODE PHOSPHORE STRONTIUM ARSENIEUX "
        u"BISMUTH LITHIUM CUIVRE ARGENT");
    return elements;
}

/// What a key becomes when one salt, hydrate or the word "BASE" is taken away.
QStringList Reductions(const QString& cle)
{
    QStringList reduites;
    for (const QString& suite : SuitesEnDeuxMots()) {
        if (cle.endsWith(suite)) {
            reduites.append(cle.chopped(suite.size()));
        }
    }
    const QStringList mots = cle.split(u' ');
    if (mots.size() >= 2 && (Suites().contains(mots.last()) || Sels().contains(mots.last()))) {
        reduites.append(mots.mid(0, mots.size() - 1).join(u' '));
    }
    const auto deVers = [&](qsizetype place) {
        return mots.size() > place + 1 &&
               (mots[place] == QStringLiteral("DE") || mots[place] == QStringLiteral("D"));
    };
    if (Sels().contains(mots.first()) && deVers(1)) {
        reduites.append(mots.mid(2).join(u' '));
    }
    if (mots.size() > 1 && Sels().contains(mots.first()) && Suites().contains(mots[1]) && deVers(2)) {
        reduites.append(mots.mid(3).join(u' '));
    }
    return reduites;
}

/// "SODIUM (CHLORURE DE) ANHYDRE" as "CHLORURE DE SODIUM ANHYDRE", "NICOTINIQUE (ACIDE)" as "ACIDE
/// NICOTINIQUE". Empty when the name is not written that way.
QString EnOrdreNaturel(const QString& nom)
{
    static const QRegularExpression inverse(
        QStringLiteral(
            R"(^([^()]+)\(\s*([^()]*(?:\bDE|\bDU|\bD['’]|ACIDE|TOXINE|CHLORHYDRATE))\s*\)([^()]*)$)"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch trouve = inverse.match(nom);
    return trouve.hasMatch()
               ? CleDeNom(trouve.captured(2) + QLatin1Char(' ') + trouve.captured(1) + trouve.captured(3))
               : QString();
}

} // namespace

QString CleDeNom(QStringView nom)
{
    QString cle;
    for (const QChar c : common::Replie(nom)) {
        const bool garde = c.isLetterOrNumber();
        if (garde) {
            cle += c;
        } else if (!cle.isEmpty() && cle.back() != u' ') {
            cle += u' ';
        }
    }
    return cle.trimmed();
}

QStringList ClesDEntree(const QString& nom)
{
    QStringList cles = {CleDeNom(nom)};
    const QString naturelle = EnOrdreNaturel(nom);
    if (!naturelle.isEmpty()) {
        cles.append(naturelle);
    }
    return cles;
}

QSet<QString> FormesPubliques(const QString& nom)
{
    QStringList aReduire = ClesDEntree(nom);
    if (aReduire.first().contains(QStringLiteral("HOMEOPATH"))) {
        return {};
    }
    const QSet<QString> entieres(aReduire.begin(), aReduire.end());
    QSet<QString> formes;
    while (!aReduire.isEmpty()) {
        const QString cle = aReduire.takeLast();
        if (cle.isEmpty() || formes.contains(cle) || (Elements().contains(cle) && !entieres.contains(cle))) {
            continue;
        }
        formes.insert(cle);
        aReduire.append(Reductions(cle));
    }
    return formes;
}

bool EstMotCommun(const QString& mot)
{
    static const QSet<QString> communs = Mots(u"ACIDE COMPLEXE EXTRAIT HUMAIN HUMAINE SOLUTION VIRUS");
    return communs.contains(mot) || Sels().contains(mot) || Suites().contains(mot) ||
           Elements().contains(mot);
}

} // namespace banque
