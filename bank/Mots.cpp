#include "bank/Mots.h"

#include "bank/Champs.h"
#include "common/CleDeTri.h"

#include <QHash>

namespace banque {

namespace {

bool EstChiffre(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool EstNombre(const QString& mot)
{
    return std::all_of(mot.begin(), mot.end(), EstChiffre);
}

bool EstMillier(const QString& mot)
{
    return mot.size() == 3 && EstNombre(mot);
}

bool Continue(const QString& replie, qsizetype place)
{
    const QChar c = replie[place];
    const QChar avant = replie[place - 1];
    if ((c == u',' || c == u'.') && EstChiffre(avant)) {
        return place + 1 < replie.size() && EstChiffre(replie[place + 1]);
    }
    if (avant == u',' || avant == u'.') {
        return EstChiffre(c);
    }
    return c.isLetterOrNumber() && EstChiffre(c) == EstChiffre(avant);
}

/// A dose in grams as milligrams, since both are written; empty when it is not a whole number of them.
QString Milligrammes(const QString& grammes)
{
    const QStringList parties = grammes.split(u',');
    const QString decimales = parties.size() > 1 ? parties[1] : QString();
    if (parties[0].size() > 3 || decimales.size() > 3) {
        return {};
    }
    const int milligrammes = parties[0].toInt() * 1000 + decimales.leftJustified(3, u'0').toInt();
    return milligrammes > 0 ? QString::number(milligrammes) : QString();
}

/// Joins each number to those behind it that `suit` accepts.
template <typename Suite> QStringList Joints(const QStringList& mots, Suite&& suit)
{
    QStringList joints;
    bool nombre = false;
    for (const QString& mot : mots) {
        if (nombre && suit(mot)) {
            joints.last() += mot;
        } else {
            joints.append(mot);
            nombre = EstNombre(mot);
        }
    }
    return joints;
}

/// A dose in grams as the milligrams that stand in the index for both ways of writing it.
QStringList SansGrammes(const QStringList& mots)
{
    QStringList sans;
    for (int i = 0; i < mots.size(); ++i) {
        const bool grammes = EstChiffre(mots[i].front()) && mots.value(i + 1) == QLatin1String("G");
        const QString milligrammes = grammes ? Milligrammes(mots[i]) : QString();
        sans.append(milligrammes.isEmpty() ? mots[i] : milligrammes);
        i += milligrammes.isEmpty() ? 0 : 1;
    }
    return sans;
}

/// The short words of a prescription as the names of the public files have them.
QStringList EnEntier(QStringList mots)
{
    static const QHash<QString, QString> abreviations = {
        {common::Replie(QStringLiteral("µg")), QStringLiteral("MICROGRAMME")},
        {QStringLiteral("MCG"), QStringLiteral("MICROGRAMME")},
        {QStringLiteral("CP"), QStringLiteral("COMPRIME")},
        {QStringLiteral("CPR"), QStringLiteral("COMPRIME")},
    };
    for (QString& mot : mots) {
        mot = abreviations.value(mot, mot);
    }
    return mots;
}

} // namespace

QStringList Mots(const QString& nom)
{
    const QString replie = common::Replie(Nettoie(nom));
    QStringList mots;
    for (qsizetype place = 0; place < replie.size();) {
        if (!replie[place].isLetterOrNumber()) {
            ++place;
            continue;
        }
        qsizetype fin = place + 1;
        while (fin < replie.size() && Continue(replie, fin)) {
            ++fin;
        }
        mots.append(replie.mid(place, fin - place).replace(u'.', u','));
        place = fin;
    }
    return mots;
}

QList<MotPlace> MotsATrouver(const QString& nom)
{
    const QStringList mots = Mots(nom);
    QList<MotPlace> places;
    for (int i = 0; i < mots.size(); ++i) {
        places.append({mots[i], i});
        if (EstChiffre(mots[i].front()) && mots.value(i + 1) == QLatin1String("G")) {
            const QString milligrammes = Milligrammes(mots[i]);
            places.append({milligrammes.isEmpty() ? mots[i] : milligrammes, i});
        }
        if (!EstNombre(mots[i]) || mots[i].size() > 3) {
            continue;
        }
        QString nombre = mots[i];
        for (int j = i + 1; j < mots.size() && EstMillier(mots[j]); ++j) {
            nombre += mots[j];
            places.append({nombre, i});
        }
    }
    return places;
}

QList<QStringList> Lectures(const QString& question)
{
    const QStringList mots = Mots(question);
    const QStringList milliers = Joints(mots, EstMillier);
    QList<QStringList> lectures{SansGrammes(milliers)};
    for (const QStringList& autre :
         {milliers, Joints(mots, EstNombre), mots, EnEntier(SansGrammes(milliers))}) {
        if (!lectures.contains(autre)) {
            lectures.append(autre);
        }
    }
    return lectures;
}

QString CleNaturelle(const QString& nom)
{
    constexpr qsizetype kChiffres = 12;
    QString cle;
    for (const QString& mot : Joints(Mots(nom), EstMillier)) {
        if (EstChiffre(mot.front())) {
            const qsizetype entiers = mot.indexOf(u',') < 0 ? mot.size() : mot.indexOf(u',');
            cle += QString(std::max<qsizetype>(0, kChiffres - entiers), u'0');
        }
        cle += mot + u' ';
    }
    return cle;
}

} // namespace banque
