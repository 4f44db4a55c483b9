#include "bank/bibliotheque/Fiches.h"

#include "bank/bibliotheque/FicheHtml.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"

#include <QDir>
#include <QUrl>

namespace banque::bibliotheque {

QByteArray Fiches::Adresse(const QSqlDatabase& base, qint64 cis)
{
    if (!dossier_ || !dossier_->isValid() || !common::DossierExiste(dossier_->path())) {
        dossier_ = std::make_unique<QTemporaryDir>(
            common::Joint(QDir::tempPath(), QStringLiteral("scriptelle-fiches-XXXXXX")));
        if (!dossier_->isValid()) {
            throw common::Erreur(dossier_->errorString(), common::CheminAffiche(QDir::tempPath()));
        }
    }
    const QString chemin = common::Joint(dossier_->path(), QStringLiteral("%1.html").arg(cis));
    if (!common::FichierExiste(chemin)) {
        common::EcritFichier(chemin, FicheHtml(base, cis).toUtf8());
    }
    return QUrl::fromLocalFile(chemin).toEncoded();
}

} // namespace banque::bibliotheque
