#pragma once

#include <QByteArray>
#include <QString>

class QUrl;

namespace drugbank {

/// The most that is read of a page, and of a picture or style sheet in it, in bytes.
constexpr qint64 kPageMaximum = 4'000'000;
constexpr qint64 kRessourceMaximum = 8'000'000;

/// What an address gave.
struct Recu
{
    QByteArray Octets;
    QByteArray Jeu; ///< the character set that the server named; empty for none
    QString Manque; ///< why there is nothing, a French sentence; empty when all was received
};

/// The file of a local address; only a plain file of at most `maximum` bytes is read.
Recu LitLeFichier(const QUrl& adresse, qint64 maximum);

/// The text of a page: by its byte order mark, else by the character set that the server or the page names,
/// else as UTF-8 when it is that, else as Windows-1252.
QString TexteDeLaPage(const QByteArray& octets, const QByteArray& jeu = {});

/// What is shown of the bytes of a page: the page itself, or a plain text as one. Spans of table cells
/// beyond 100 are cut to that, and one whose tables are nested too deep or have too many cells becomes its
/// bare text: laying it out would take the memory, or the patience. A null text for bytes that are no text.
QString HtmlDeLaPage(const QByteArray& octets, const QByteArray& jeu = {});

/// A short page of the program's own that says one sentence.
QString PageDUnePhrase(const QString& phrase);

} // namespace drugbank
