#include "drugbank/PageDocument.h"

#include "common/Texte8.h"
#include "drugbank/messagesDocument.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QUrl>

namespace drugbank {

namespace {

constexpr qsizetype kEnTete = 2048; // the character set stands in these first bytes of a page
constexpr int kTablesEmboitees = 40;
constexpr int kCellules = 6'000; // of all tables together

QRegularExpression SansCasse(const QString& motif)
{
    return QRegularExpression(motif, QRegularExpression::CaseInsensitiveOption);
}

/// What the page says of its own character set, in small letters.
QByteArray JeuDeLaPage(const QByteArray& octets)
{
    static const QRegularExpression jeu =
        SansCasse(QStringLiteral("<(?:meta|\\?xml)[^>]*(?:charset|encoding)\\s*=\\s*[\"']?\\s*([\\w.:-]+)"));
    return jeu.match(QString::fromLatin1(octets.left(kEnTete))).captured(1).toLower().toLatin1();
}

bool EstUtf8(const QByteArray& octets)
{
    QStringDecoder lecture(QStringDecoder::Utf8);
    const QString texte = lecture(octets);
    return !lecture.hasError() && !texte.contains(QChar::ReplacementCharacter);
}

bool EstWindows1252(const QByteArray& jeu)
{
    return jeu.contains("1252") || jeu.contains("8859-1") || jeu == "latin1" || jeu == "us-ascii";
}

bool ATropDeTables(const QString& html)
{
    static const QRegularExpression balise = SansCasse(QStringLiteral("<(/?)(table|t[dh])\\b"));
    int emboitees = 0;
    int cellules = 0;
    for (auto trouves = balise.globalMatch(html); trouves.hasNext();) {
        const auto trouve = trouves.next();
        const bool fermee = !trouve.captured(1).isEmpty();
        if (trouve.captured(2).size() > 2) {
            emboitees = std::max(0, emboitees + (fermee ? -1 : 1));
        } else if (!fermee) {
            ++cellules;
        }
        if (emboitees > kTablesEmboitees || cellules > kCellules) {
            return true;
        }
    }
    return false;
}

QString TexteNu(const QString& html)
{
    return QStringLiteral("<pre style=\"white-space: pre-wrap\">") + html + QStringLiteral("</pre>");
}

/// The text of a page without its tags; what it writes as "&eacute;" stays so.
QString SansBalises(QString html)
{
    static const QRegularExpression muet(QStringLiteral("<(script|style)\\b.*?</\\1\\s*>"),
                                         QRegularExpression::CaseInsensitiveOption |
                                             QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression balise(QStringLiteral("<[^>]*>"));
    return html.remove(muet).replace(balise, QStringLiteral(" ")).replace(u'<', QStringLiteral("&lt;"));
}

/// A page may leave out what the toolkit wants to find: the end of these tags, without which it takes all
/// that follows for their content and hides it, and the kind of a style sheet.
QString PourLaVue(QString html)
{
    static const QRegularExpression style =
        SansCasse(QStringLiteral("<link\\b(?=[^>]*\\bstylesheet\\b)(?![^>]*\\btype\\s*=)"));
    static const QRegularExpression sansFin =
        SansCasse(QStringLiteral("<(meta|link|base)\\b([^>]*?)/?>(?!\\s*</\\1)"));
    html.replace(style, QStringLiteral("<link type=\"text/css\" "));
    return html.replace(sansFin, QStringLiteral("<\\1\\2></\\1>"));
}

} // namespace

Recu LitLeFichier(const QUrl& adresse, qint64 maximum)
{
    const QFileInfo infos(adresse.toLocalFile());
    if (!infos.isFile()) {
        return {{}, {}, messages::DocumentAbsent(infos.fileName())};
    }
    QFile fichier(infos.filePath());
    if (!fichier.open(QIODevice::ReadOnly)) {
        return {{}, {}, messages::DocumentIllisible(infos.fileName())};
    }
    const QByteArray octets = fichier.read(maximum + 1);
    if (octets.size() > maximum) {
        return {{}, {}, messages::DocumentTropGrand(infos.fileName())};
    }
    return {octets, {}, {}};
}

QString TexteDeLaPage(const QByteArray& octets, const QByteArray& jeu)
{
    if (const auto marque = QStringConverter::encodingForData(octets)) {
        return QStringDecoder(*marque)(octets);
    }
    const QByteArray nomme = jeu.isEmpty() ? JeuDeLaPage(octets) : jeu.toLower();
    if (EstWindows1252(nomme)) {
        return common::DepuisWindows1252(octets);
    }
    if (const auto connu = QStringConverter::encodingForName(nomme.constData())) {
        return QStringDecoder(*connu)(octets);
    }
    return EstUtf8(octets) ? QString::fromUtf8(octets) : common::DepuisWindows1252(octets);
}

QString HtmlDeLaPage(const QByteArray& octets, const QByteArray& jeu)
{
    QString texte = TexteDeLaPage(octets, jeu);
    if (octets.startsWith("%PDF") || texte.contains(QChar::Null)) {
        return {};
    }
    if (!texte.contains(u'<')) {
        return TexteNu(texte.toHtmlEscaped());
    }
    if (ATropDeTables(texte)) {
        return TexteNu(SansBalises(texte));
    }
    static const QRegularExpression etendue =
        SansCasse(QStringLiteral("\\b((?:col|row)span\\s*=\\s*[\"']?\\s*)\\+?0*[1-9]\\d{2,}"));
    return PourLaVue(texte.replace(etendue, QStringLiteral("\\1100")));
}

QString PageDUnePhrase(const QString& phrase)
{
    return QStringLiteral("<p>") + phrase.toHtmlEscaped() + QStringLiteral("</p>");
}

} // namespace drugbank
