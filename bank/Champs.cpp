#include "bank/Champs.h"

namespace banque {

namespace {

constexpr int kAnneeMinimum = 1900;
constexpr int kAnneeMaximum = 2100;

bool EstChiffre(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool QueDesChiffres(QStringView texte)
{
    return !texte.isEmpty() && std::all_of(texte.begin(), texte.end(), EstChiffre);
}

bool EstBlanc(QChar c)
{
    return c.isSpace() || c.unicode() < 0x20 || (c.unicode() >= 0x7F && c.unicode() < 0xA0) ||
           c == QChar(0x200B) || c == QChar(0xFEFF);
}

/// Nearly every field has nothing to clean.
bool EstNet(QStringView champ)
{
    bool blanc = true;
    for (const QChar c : champ) {
        const bool espace = c == u' ';
        if ((espace && blanc) || (!espace && EstBlanc(c))) {
            return false;
        }
        blanc = espace;
    }
    return champ.isEmpty() || !blanc;
}

std::optional<QDate> Plausible(int annee, int mois, int jour)
{
    const QDate date(annee, mois, jour);
    const bool plausible = date.isValid() && annee >= kAnneeMinimum && annee <= kAnneeMaximum;
    return plausible ? std::optional(date) : std::nullopt;
}

} // namespace

QString Nettoie(QStringView champ)
{
    if (EstNet(champ)) {
        return champ.toString();
    }
    QString net;
    net.reserve(champ.size());
    for (const QChar c : champ) {
        if (!EstBlanc(c)) {
            net.append(c);
        } else if (!net.isEmpty() && !net.endsWith(u' ')) {
            net.append(u' ');
        }
    }
    if (net.endsWith(u' ')) {
        net.chop(1);
    }
    return net;
}

std::optional<qint64> Code(QStringView champ, int chiffres)
{
    const QStringView code = champ.trimmed();
    if (code.size() != chiffres || !QueDesChiffres(code)) {
        return std::nullopt;
    }
    return code.toLongLong();
}

std::optional<int> Nombre(QStringView champ)
{
    const QStringView nombre = champ.trimmed();
    if (nombre.size() > 9 || !QueDesChiffres(nombre)) {
        return std::nullopt;
    }
    return nombre.toInt();
}

std::optional<qint64> Centimes(QStringView champ)
{
    QString prix = Nettoie(champ);
    prix.remove(u' ');
    QStringList groupes = prix.split(u',');
    if (groupes.size() < 2 || groupes.last().size() != 2) {
        return std::nullopt;
    }
    for (qsizetype i = 0; i < groupes.size(); ++i) {
        const bool millier = i > 0 && i < groupes.size() - 1;
        if (!QueDesChiffres(groupes[i]) || (millier && groupes[i].size() != 3)) {
            return std::nullopt;
        }
    }
    const bool milliers = groupes.size() > 2;
    const qsizetype debut = groupes.first().size();
    const QString chiffres = groupes.join(QString());
    if (chiffres.size() > 12 || (milliers && debut > 3)) {
        return std::nullopt;
    }
    return chiffres.toLongLong();
}

std::optional<int> Taux(QStringView champ)
{
    const QString taux = Nettoie(champ);
    const auto nombre = Nombre(taux.endsWith(u'%') ? QStringView(taux).chopped(1) : QStringView(taux));
    return nombre && *nombre <= 100 ? nombre : std::nullopt;
}

std::optional<QDate> DateBarre(QStringView champ)
{
    const QStringView date = champ.trimmed();
    if (date.size() != 10 || date[2] != u'/' || date[5] != u'/') {
        return std::nullopt;
    }
    const auto jour = Code(date.first(2), 2);
    const auto mois = Code(date.sliced(3, 2), 2);
    const auto annee = Code(date.sliced(6), 4);
    if (!jour || !mois || !annee) {
        return std::nullopt;
    }
    return Plausible(static_cast<int>(*annee), static_cast<int>(*mois), static_cast<int>(*jour));
}

std::optional<QDate> DateSerree(QStringView champ)
{
    const auto date = Code(champ, 8);
    if (!date) {
        return std::nullopt;
    }
    const int nombre = static_cast<int>(*date);
    return Plausible(nombre / 10000, nombre / 100 % 100, nombre % 100);
}

} // namespace banque
