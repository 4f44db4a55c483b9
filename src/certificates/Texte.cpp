#include "certificates/Texte.h"

#include "common/Fichiers.h"
#include "common/Texte8.h"

namespace certificates {

namespace {

constexpr QByteArrayView kMarqueUtf8 = "\xEF\xBB\xBF";

} // namespace

QString CheminCertificats(const QString& cheminTravail)
{
    return common::Joint(cheminTravail, QStringLiteral("Certificats"));
}

QString CheminTmp(const QString& cheminTravail)
{
    return common::Joint(CheminCertificats(cheminTravail), QStringLiteral("Tmp.txt"));
}

QString LitTexte(const QString& chemin)
{
    const QByteArray octets = common::LitFichier(chemin);
    if (octets.startsWith(kMarqueUtf8)) {
        return QString::fromUtf8(octets.sliced(kMarqueUtf8.size()));
    }
    return common::DepuisWindows1252(octets);
}

void EcritTexte(const QString& chemin, const QString& texte)
{
    common::EcritFichier(chemin, common::TientEnWindows1252(texte)
                                     ? common::VersWindows1252(texte)
                                     : kMarqueUtf8.toByteArray() + texte.toUtf8());
}

} // namespace certificates
