#include "prescription/Editeur.h"

#include "common/Fichiers.h"
#include "prescription/messages.h"

#include <QFileInfo>
#include <QImageReader>

namespace prescription {

namespace {

constexpr qint64 kPoidsMaximal = 64LL * 1024 * 1024;
constexpr qint64 kPointsMaximaux = 100'000'000;
constexpr int kCoteUtile = 3000; // more points than a printer shows on a letterhead

QImage LitImage(const QString& chemin)
{
    if (QFileInfo(chemin).size() > kPoidsMaximal) {
        return {};
    }
    QImageReader lecteur(chemin);
    lecteur.setAutoTransform(true);
    lecteur.setDecideFormatFromContent(true);
    const QSize taille = lecteur.size();
    if (taille.isValid() && qint64(taille.width()) * taille.height() > kPointsMaximaux) {
        return {};
    }
    if (qMax(taille.width(), taille.height()) > kCoteUtile) {
        lecteur.setScaledSize(taille.scaled(kCoteUtile, kCoteUtile, Qt::KeepAspectRatio));
    }
    return lecteur.read();
}

} // namespace

QImage ChargeLogo(const settings::Options& options)
{
    return options.FichierLogo.isEmpty() ? QImage() : LitImage(options.FichierLogo);
}

QString DefautDuLogo(const settings::Options& options)
{
    if (options.LogoActif != 1 || options.FichierLogo.isEmpty() || !ChargeLogo(options).isNull()) {
        return {};
    }
    return messages::LogoIllisible(common::CheminAffiche(options.FichierLogo));
}

} // namespace prescription
