// A bank library that starts without a session, and lacks most functions. The open bank's choice of a file is
// written into that file.
#include "drugbank/InterfaceBanque.h"

#include <QFile>

#define EXPORTE extern "C" Q_DECL_EXPORT

using drugbank::Entier;
using drugbank::Poignee;

#ifndef SANS_DEMARRAGE
EXPORTE Entier DRUGBANK_APPEL VidalAPI_init(Poignee*, Entier)
{
    return 0;
}
#endif
#ifndef SANS_VERSION
EXPORTE Entier DRUGBANK_APPEL VidalAPI_getVersion(char* tampon, Entier longueur)
{
    for (Entier i = 0; i < longueur; ++i) {
        tampon[i] = 'v'; // no NUL at the end
    }
    return 0;
}
#endif
EXPORTE void DRUGBANK_APPEL BanquePublique_choisitFichier(const char* chemin)
{
    QFile fichier(QString::fromUtf8(chemin));
    if (fichier.open(QIODevice::Append)) {
        fichier.write("lu ");
    }
}
