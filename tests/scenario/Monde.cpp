#include "scenario/Monde.h"

#include "scenario/Echec.h"
#include "scenario/Fichiers.h"

#include <QDir>

namespace scenario {

Monde Monde::Cree(const QString& racine, const QString& installation)
{
    Monde monde(QDir(racine).absolutePath());
    for (const QString& dossier : {monde.Programme(), monde.Utilisateur(), monde.Maison()}) {
        QDir(dossier).removeRecursively();
        if (!QDir().mkpath(dossier)) {
            throw Echec{QStringLiteral("le dossier « %1 » ne peut pas être créé").arg(dossier)};
        }
    }
    QFile::setPermissions(monde.Maison(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (!installation.isEmpty()) {
        Copie(installation, monde.Programme());
    }
    return monde;
}

bool Monde::Contient(const QString& chemin) const
{
    return QDir::cleanPath(QDir(chemin).absolutePath()).startsWith(racine_ + QLatin1Char('/'));
}

} // namespace scenario
