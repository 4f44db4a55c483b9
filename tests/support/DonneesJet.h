#pragma once

#include "common/Fichiers.h"

#include <QFile>
#include <QProcess>

namespace support {

/// Invented practices in Jet files, with the expected reading. They stand beside the project where it is
/// developed, and are no part of it.
class DonneesJet
{
public:
    static QString Chemin(const QString& nom)
    {
        return common::Joint(QStringLiteral(RACINE_PROJET "/../shared/data/jet"), nom);
    }
    static bool Presentes() { return common::FichierExiste(Chemin(QStringLiteral("petit/Medoc.mdb"))); }

    /// The lines of an expected reading, "petit/Medoc.Patients.tsv", packed or not.
    static QByteArrayList Lignes(const QString& nom)
    {
        QByteArray contenu;
        if (common::FichierExiste(Chemin(nom))) {
            contenu = common::LitFichier(Chemin(nom));
        } else {
            QProcess xz;
            xz.start(QStringLiteral("xz"), {QStringLiteral("-dc"), Chemin(nom + QStringLiteral(".xz"))});
            xz.waitForFinished();
            contenu = xz.readAllStandardOutput();
        }
        QByteArrayList lignes = contenu.split('\n');
        if (lignes.constLast().isEmpty()) {
            lignes.removeLast();
        }
        return lignes;
    }
};

} // namespace support
