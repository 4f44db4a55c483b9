#pragma once

#include <QUrl>

namespace drugbank {

/// What becomes of an address in the view of documents.
enum class Sort {
    Vide,    ///< nothing to show
    Fichier, ///< read from a file
    Boucle,  ///< asked of a server on this computer, by the loopback interface
    Dehors,  ///< never loaded, only offered to the system's browser
    Refuse   ///< neither loaded nor offered
};

/// The address that the program or a bank names: a URL or a path of this system. An empty text is
/// "about:blank".
QUrl AdresseDepuisTexte(const QString& texte);

/// What becomes of an address that the program or a bank names, and of where a server sends it on to.
Sort SortDeLAdresse(const QUrl& adresse);

/// What becomes of an absolute address that a page names: a link, a picture, a style sheet. As
/// `SortDeLAdresse`, but a file of another computer is refused unless the page is a file of the same one.
Sort SortDuLien(const QUrl& adresse, const QUrl& page);

/// True when the system's browser may be given the address: a web address, or a file that is a page, a text
/// or a picture. Another file could be a program.
bool SOuvreDehors(const QUrl& adresse);

} // namespace drugbank
