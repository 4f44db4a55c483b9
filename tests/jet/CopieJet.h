#pragma once

#include "common/Fichiers.h"
#include "storage/ConversionJet.h"
#include "support/BaseDeTest.h"
#include "support/DonneesJet.h"

#include <QDir>
#include <QTemporaryDir>

namespace support {

/// A copy of one of the Jet files in a directory of its own.
class CopieJet
{
public:
    explicit CopieJet(const QString& source, const QString& sousDossier = {})
        : dossier_(common::Joint(racine_.path(), sousDossier)), nom_(source.section(u'/', -1)),
          contenu_(common::LitFichier(DonneesJet::Chemin(source)))
    {
        common::CreeDossier(dossier_);
        Ecris(contenu_);
    }

    QString Dossier() const { return dossier_; }
    QString Chemin() const { return common::Joint(dossier_, nom_); }
    QString Garde() const { return common::Joint(dossier_, nom_.chopped(4) + QStringLiteral(" (Jet).mdb")); }
    storage::GenreBase Genre() const
    {
        return nom_ == QLatin1String("Ordo.mdb") ? storage::GenreBase::Ordo : storage::GenreBase::Medoc;
    }
    QStringList Fichiers() const { return QDir(dossier_).entryList(QDir::Files | QDir::Hidden); }
    const QByteArray& Contenu() const { return contenu_; }

    void Ecris(const QByteArray& contenu)
    {
        contenu_ = contenu;
        common::EcritFichier(Chemin(), contenu);
    }
    /// True while the directory holds this file alone, with the bytes last written.
    bool Intacte() const
    {
        return Fichiers() == QStringList{nom_} && common::LitFichier(Chemin()) == contenu_;
    }

    /// Converts it; the sentence that it fails with, empty when it succeeds.
    QString Convertit(const storage::ReglagesConversion& reglages = {}) const
    {
        return PhraseDEchec([&] { storage::ConvertitSiJet(Chemin(), Genre(), reglages); });
    }

private:
    QTemporaryDir racine_;
    QString dossier_;
    QString nom_;
    QByteArray contenu_;
};

} // namespace support
