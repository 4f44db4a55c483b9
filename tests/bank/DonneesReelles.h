#pragma once

#include "common/Fichiers.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

namespace support {

/// The public files as published, unpacked into a directory of their own. They stand beside the project where
/// it is developed, and are no part of it.
class DonneesReelles
{
public:
    static QString Paquets() { return QStringLiteral(RACINE_PROJET "/../shared/data/bdpm"); }
    static bool Presentes() { return common::DossierExiste(Paquets()); }

    DonneesReelles()
    {
        for (const QString& nom : QDir(Paquets()).entryList({QStringLiteral("*.xz")}, QDir::Files)) {
            QProcess xz;
            xz.setStandardOutputFile(common::Joint(dossier_.path(), nom.chopped(3)));
            xz.start(QStringLiteral("xz"), {QStringLiteral("-dc"), common::Joint(Paquets(), nom)});
            entieres_ = entieres_ && xz.waitForFinished() && xz.exitCode() == 0;
        }
    }

    bool Entieres() const { return entieres_; }
    QString Dossier() const { return dossier_.path(); }

private:
    QTemporaryDir dossier_;
    bool entieres_ = true;
};

} // namespace support
