#include "bank/bibliotheque/FicheTextes.h"

#include "common/CleDeTri.h"

#include <QDate>
#include <QLocale>
#include <QRegularExpression>

namespace banque::bibliotheque::fiche {

QString Sur(const QString& texte)
{
    return texte.toHtmlEscaped();
}

QString AvecSautsDeLigne(const QString& texte)
{
    static const QRegularExpression saut(QStringLiteral("&lt;br\\s*/?&gt;"),
                                         QRegularExpression::CaseInsensitiveOption);
    return Sur(texte).replace(saut, QStringLiteral("<br>"));
}

QString Champ(const QString& nom, const QString& valeur)
{
    return valeur.isEmpty()
               ? QString()
               : QStringLiteral("<span class=\"discret\">%1 :</span> ").arg(Sur(nom)) + Sur(valeur);
}

QString Joint(const QStringList& textes, const QString& separateur)
{
    QStringList presents = textes;
    presents.removeAll(QString());
    return presents.join(separateur);
}

QString Lien(const QString& adresse, const QString& texte, const QString& devant)
{
    static const QRegularExpression web(QStringLiteral("^https?://[^\\s\"'<>]+$"));
    if (!web.match(adresse).hasMatch()) {
        return {};
    }
    return devant + QStringLiteral("<a href=\"%1\">").arg(Sur(adresse)) + Sur(texte) + QStringLiteral("</a>");
}

QString Date(const QString& iso)
{
    return QDate::fromString(iso, Qt::ISODate).toString(QStringLiteral("dd/MM/yyyy"));
}

QString Prix(const QVariant& prix)
{
    static const QLocale francais(QLocale::French, QLocale::France);
    return prix.isNull() ? QStringLiteral("sans prix public")
                         : francais.toString(prix.toDouble(), 'f', 2) + QStringLiteral("&nbsp;€");
}

QString Taux(const QVariant& taux)
{
    return taux.isNull() ? QStringLiteral("non remboursé") : QStringLiteral("%1 %").arg(taux.toInt());
}

QString TypeGenerique(int type)
{
    switch (type) {
    case 0:
        return QStringLiteral("spécialité de référence");
    case 1:
        return QStringLiteral("générique");
    case 2:
        return QStringLiteral("générique par complémentarité posologique");
    case 4:
        return QStringLiteral("générique substituable");
    default:
        return QStringLiteral("membre du groupe");
    }
}

namespace {

bool Contient(const QString& texte, const QStringList& mots)
{
    const QString replie = common::Replie(texte);
    return std::any_of(mots.begin(), mots.end(), [&](const QString& mot) { return replie.contains(mot); });
}

} // namespace

bool ConditionForte(const QString& condition)
{
    static const QStringList mots = {
        QStringLiteral("STUPEFIANT"), QStringLiteral("HOSPITALI"),    QStringLiteral("SECURISEE"),
        QStringLiteral("RESERVE"),    QStringLiteral("LIMITEE"),      QStringLiteral("FRACTIONNEE"),
        QStringLiteral("CAPACITE"),   QStringLiteral("SURVEILLANCE"), QStringLiteral("ACCORD"),
        QStringLiteral("PROCREER"),   QStringLiteral("INITIALE"),     QStringLiteral("TOUTES LETTRES"),
        QStringLiteral("EXCEPTION"),  QStringLiteral("ATTESTATION")};
    return Contient(condition, mots);
}

bool ConditionMajeure(const QString& condition)
{
    return Contient(condition, {QStringLiteral("STUPEFIANT"), QStringLiteral("USAGE HOSPITALIER")});
}

QString FicheOfficielle(qint64 cis)
{
    return QStringLiteral("https://base-donnees-publique.medicaments.gouv.fr/extrait.php?specid=%1").arg(cis);
}

QStringList AlertesDeSpecialite(const EtatSpecialite& etat)
{
    QStringList alertes;
    if (etat.Statut != QLatin1String("Autorisation active") && !etat.Statut.isEmpty()) {
        alertes += QStringLiteral("<b>%1</b>").arg(Sur(etat.Statut));
    }
    if (!etat.Commercialisee) {
        alertes += QStringLiteral("Spécialité non commercialisée");
    }
    if (etat.Surveillance) {
        alertes += QStringLiteral("▼ Médicament sous surveillance renforcée");
    }
    if (etat.Alerte == QLatin1String("Alerte")) {
        alertes += QStringLiteral("Une alerte est publiée sur ce médicament : voir la fiche officielle.");
    } else if (!etat.Alerte.isEmpty()) {
        alertes += QStringLiteral("Une information de disponibilité est publiée : voir la fiche officielle.");
    }
    if (etat.Homeopathie) {
        alertes += QStringLiteral("Médicament homéopathique : ses interactions ne sont pas vérifiées.");
    }
    return alertes;
}

} // namespace banque::bibliotheque::fiche
