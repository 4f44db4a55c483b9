#include "drugbank/Chargement.h"

#include "common/Dates.h"
#include "common/Fichiers.h"
#include "common/Texte8.h"
#include "drugbank/BanquePublique.h"
#include "startup/Chemins.h"

#include <QDir>

namespace drugbank {

namespace {

constexpr Entier kLongueurVersion = 64;
constexpr int kLongueurDate = 10;

QString NomDeLAide()
{
    return QStringLiteral("vidalhelper");
}

QString NomPublic()
{
    return QStringLiteral("scriptelle-bdp");
}

template <typename Liaison> std::shared_ptr<Liaison> SiChargee(std::shared_ptr<Liaison> liaison)
{
    return liaison->Chargee() ? liaison : nullptr;
}

} // namespace

std::shared_ptr<LiaisonAide> ChargeAide(const startup::Chemins& chemins)
{
    auto aide =
        SiChargee(std::make_shared<LiaisonAide>(common::Joint(chemins.CheminProgramme, NomDeLAide())));
    return aide ? aide : SiChargee(std::make_shared<LiaisonAide>(NomDeLAide()));
}

std::shared_ptr<LiaisonBanque> ChargeBanque(const QString& chemin)
{
    return SiChargee(std::make_shared<LiaisonBanque>(chemin));
}

QString CheminBanquePublique(const startup::Chemins& chemins)
{
    return common::Joint(chemins.CheminProgramme, NomPublic());
}

void ChoisitFichierPublic(const LiaisonBanque& banque, const startup::Chemins& chemins)
{
    if (banque.BanquePublique_choisitFichier.Existe()) {
        banque.BanquePublique_choisitFichier(FichierBanquePublique(chemins).toUtf8().constData());
    }
}

bool BanquePubliquePresente(const startup::Chemins& chemins)
{
    const QStringList noms = {NomPublic() + QStringLiteral(".*"), QStringLiteral("lib%1.*").arg(NomPublic())};
    return !QDir(chemins.CheminProgramme).entryList(noms, QDir::Files).isEmpty();
}

QDateTime DateUnix(qint32 secondes)
{
    return QDateTime(QDate(1970, 1, 1), QTime(0, 0), Qt::UTC).addSecs(secondes);
}

QString DateExpiration(const LiaisonBanque& banque, Poignee session)
{
    if (!banque.DatabaseInfoService_getExpiryDate.Existe()) {
        return {};
    }
    const std::int64_t instant = banque.DatabaseInfoService_getExpiryDate(session);
    return common::TexteDate(DateUnix(static_cast<qint32>(instant)).date()).left(kLongueurDate);
}

Entier LitVersion(const LiaisonBanque& banque, QString& version)
{
    if (!banque.VidalAPI_getVersion.Existe()) {
        return kSansFonction;
    }
    QByteArray tampon(kLongueurVersion, '\0'); // ends in a NUL of its own behind the 64
    const Entier retour = banque.VidalAPI_getVersion(tampon.data(), kLongueurVersion);
    version = common::DepuisWindows1252(QByteArray(tampon.constData())).trimmed();
    return retour;
}

} // namespace drugbank
