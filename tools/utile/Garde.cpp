#include "Garde.h"

#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "storage/Pannes.h"
#include "storage/messages.h"

#include <QDir>
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

/// The beginning of the paths of all kept files of a database.
QString DebutDeGarde(const BaseTrouvee& base)
{
    const QFileInfo info(base.Chemin);
    const QString sauvegardes = Joint(base.Arbre, QStringLiteral("Sauvegardes"));
    const bool rangee = common::DossierExiste(sauvegardes);
    const bool duMedecin = rangee && QFileInfo(info.path()) != QFileInfo(base.Arbre);
    const QString medecin = duMedecin ? QFileInfo(info.path()).fileName() + u' ' : QString();
    return Joint(rangee ? sauvegardes : info.path(),
                 QStringLiteral("Ancien_%1%2 ").arg(medecin, info.completeBaseName()));
}

} // namespace

QString CheminDeGarde(const BaseTrouvee& base, const QDateTime& moment)
{
    const QString debut = DebutDeGarde(base) + moment.toString(QStringLiteral("yyyy-MM-dd HH'h'mm'm'ss"));
    QString copie = debut + QStringLiteral(".mdb");
    for (int numero = 2; QFileInfo::exists(copie); ++numero) {
        copie = debut + QStringLiteral(" (%1).mdb").arg(numero);
    }
    return copie;
}

void RetireSecondsNoms(const BaseTrouvee& base)
{
    const std::filesystem::path fichier = QFile(base.Chemin).filesystemFileName();
    std::error_code refus;
    if (std::filesystem::hard_link_count(fichier, refus) < 2 || refus) {
        return;
    }
    const QString debut = DebutDeGarde(base);
    const QDir dossier = QFileInfo(debut).dir();
    for (const QString& nom : dossier.entryList(QDir::Files)) {
        const QString chemin = dossier.filePath(nom);
        if (chemin.startsWith(debut) &&
            std::filesystem::equivalent(fichier, QFile(chemin).filesystemFileName(), refus)) {
            common::Tolere([&] { common::SupprimeFichier(chemin); }); // it stays the same file
        }
    }
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
