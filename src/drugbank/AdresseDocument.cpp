#include "drugbank/AdresseDocument.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace drugbank {

namespace {

/// A host that stands for this computer alone. `QUrl` has put it in its plain form: small letters, dotted
/// numbers without leading zeros, the short form of IPv6.
bool EstLaBoucle(const QString& hote)
{
    static const QRegularExpression ipv4(QStringLiteral("^127(\\.(25[0-5]|2[0-4]\\d|1?\\d?\\d)){3}$"));
    return hote == QLatin1String("localhost") || hote == QLatin1String("::1") || ipv4.match(hote).hasMatch();
}

bool EstUnChemin(const QString& texte)
{
    static const QRegularExpression debut(QStringLiteral("^([A-Za-z]:[/\\\\]|/|\\\\\\\\)"));
    return debut.match(texte).hasMatch();
}

/// A file address written by hand, as "file://C:\\dossier\\page.htm": the drive would be read as a computer.
QString AvecUneRacine(const QString& texte)
{
    static const QRegularExpression disque(QStringLiteral("^file:[/\\\\]*(?=[A-Za-z]:[/\\\\])"),
                                           QRegularExpression::CaseInsensitiveOption);
    const auto trouve = disque.match(texte);
    return trouve.hasMatch()
               ? QStringLiteral("file:///") + texte.mid(trouve.capturedEnd()).replace(u'\\', u'/')
               : texte;
}

/// A file address without a computer whose path begins as that of another computer, "file:////serveur/a":
/// the system would follow it there.
bool NommeUnPartage(const QUrl& adresse)
{
    return adresse.host().isEmpty() && adresse.path().replace(u'\\', u'/').startsWith(QLatin1String("//"));
}

} // namespace

QUrl AdresseDepuisTexte(const QString& texte)
{
    const QString nu = texte.trimmed();
    if (nu.isEmpty()) {
        return QUrl(QStringLiteral("about:blank"));
    }
    if (EstUnChemin(nu)) {
        return QUrl::fromLocalFile(QString(nu).replace(u'\\', u'/'));
    }
    QUrl adresse(AvecUneRacine(nu));
    if (adresse.isLocalFile() && adresse.host() == QLatin1String("localhost")) {
        adresse.setHost({});
    }
    return adresse.isLocalFile() && NommeUnPartage(adresse)
               ? QUrl::fromLocalFile(adresse.path().replace(u'\\', u'/'))
               : adresse;
}

Sort SortDeLAdresse(const QUrl& adresse)
{
    const QString schema = adresse.scheme();
    if (adresse.isEmpty() || schema == QLatin1String("about")) {
        return Sort::Vide;
    }
    if (!adresse.isValid()) {
        return Sort::Refuse;
    }
    if (adresse.isLocalFile()) {
        return Sort::Fichier;
    }
    const bool page = schema == QLatin1String("http") || schema == QLatin1String("https");
    if (!page || adresse.host().isEmpty()) {
        return Sort::Refuse;
    }
    return EstLaBoucle(adresse.host()) ? Sort::Boucle : Sort::Dehors;
}

Sort SortDuLien(const QUrl& adresse, const QUrl& page)
{
    const Sort sort = SortDeLAdresse(adresse);
    const bool duMemePoste = page.isLocalFile() && adresse.host() == page.host();
    const bool dUnAutrePoste = !adresse.host().isEmpty() && !duMemePoste;
    return sort == Sort::Fichier && (dUnAutrePoste || NommeUnPartage(adresse)) ? Sort::Refuse : sort;
}

bool SOuvreDehors(const QUrl& adresse)
{
    const Sort sort = SortDeLAdresse(adresse);
    if (sort != Sort::Fichier) {
        return sort == Sort::Boucle || sort == Sort::Dehors;
    }
    static const QStringList pages = {QStringLiteral("htm"),  QStringLiteral("html"), QStringLiteral("xhtml"),
                                      QStringLiteral("txt"),  QStringLiteral("pdf"),  QStringLiteral("png"),
                                      QStringLiteral("jpeg"), QStringLiteral("jpg"),  QStringLiteral("gif")};
    return pages.contains(QFileInfo(adresse.toLocalFile()).suffix().toLower());
}

} // namespace drugbank
