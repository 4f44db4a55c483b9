#include "drugbank/LiaisonAide.h"

#include <QFile>

namespace drugbank {

namespace {

constexpr Entier kLongueurChemin = 255;
constexpr Entier kSansFonction = -1;

} // namespace

Entier LiaisonAide::CheminDeBanque(Entier produit, QString& chemin) const
{
    if (!VidalHelper_getVidalAPIPath.Existe()) {
        return kSansFonction;
    }
    QByteArray tampon(kLongueurChemin, ' '); // ends in a NUL of its own behind the 255
    const Entier retour = VidalHelper_getVidalAPIPath(produit, tampon.data(), kLongueurChemin);
    chemin = QFile::decodeName(QByteArray(tampon.constData())).trimmed();
    return retour;
}

} // namespace drugbank
