#include "Garde.h"

#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "storage/Pannes.h"
#include "storage/messages.h"

#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>

namespace utile {

using common::Joint;

namespace {

constexpr qint64 kBloc = 1024 * 1024;

void Recopie(QFile& fichier, const QString& copie)
{
    QSaveFile neuf(copie);
    bool bon = neuf.open(QIODevice::WriteOnly) && fichier.seek(0);
    while (bon && !fichier.atEnd()) {
        const QByteArray bloc = fichier.read(kBloc);
        bon = !bloc.isEmpty() && neuf.write(bloc) == bloc.size();
    }
    // The flush comes first: a commit alone takes a buffer that the disk refused for a written one.
    if (!bon || !neuf.flush() || !neuf.commit()) {
        const bool plein = neuf.error() == QFileDevice::ResourceError;
        throw storage::Panne(plein ? storage::messages::DisquePlein : storage::messages::DisqueEnPanne,
                             fichier.fileName());
    }
}

} // namespace

QString CheminDeGarde(const BaseTrouvee& base, const QDateTime& moment)
{
    const QFileInfo info(base.Chemin);
    const QString sauvegardes = Joint(base.Arbre, QStringLiteral("Sauvegardes"));
    const bool rangee = common::DossierExiste(sauvegardes);
    const QString dossier = rangee ? sauvegardes : info.path();
    const bool duMedecin = rangee && QFileInfo(info.path()) != QFileInfo(base.Arbre);
    const QString medecin = duMedecin ? QFileInfo(info.path()).fileName() + u' ' : QString();
    const QString debut = QStringLiteral("Ancien_%1%2 %3")
                              .arg(medecin, info.completeBaseName(),
                                   moment.toString(QStringLiteral("yyyy-MM-dd HH'h'mm'm'ss")));
    QString copie = Joint(dossier, debut + QStringLiteral(".mdb"));
    for (int numero = 2; QFileInfo::exists(copie); ++numero) {
        copie = Joint(dossier, debut + QStringLiteral(" (%1).mdb").arg(numero));
    }
    return copie;
}

void Garde(QFile& fichier, const QString& copie)
{
    std::error_code refus;
    std::filesystem::create_hard_link(fichier.filesystemFileName(), QFile(copie).filesystemFileName(), refus);
    if (refus) {
        Recopie(fichier, copie);
    }
}

void GardeAvecJournal(QFile& fichier, const QString& copie)
{
    QFile journal(fichier.fileName() + QStringLiteral("-journal"));
    if (!journal.open(QIODevice::ReadOnly)) {
        throw storage::Panne(storage::messages::BaseIllisible, fichier.fileName());
    }
    Recopie(journal, copie + QStringLiteral("-journal"));
    Recopie(fichier, copie);
}

} // namespace utile
