#include "Arbres.h"

#include "messages.h"

#include "backup/Restauration.h"
#include "common/Fichiers.h"
#include "startup/FichiersChemins.h"
#include "transfer/CopieArbre.h"
#include "upgrade/JournalMaj.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>

namespace utile {

using common::Joint;

namespace {

const QLatin1String kArbre("DataScriptelle");

/// The databases that stand in the directory itself, by their names in any case.
void AjouteBases(Arbre& arbre, const QString& dossier)
{
    for (const QFileInfo& fichier : QDir(dossier).entryInfoList(QDir::Files, QDir::Name | QDir::IgnoreCase)) {
        const bool medoc = fichier.fileName().compare(QLatin1String("Medoc.mdb"), Qt::CaseInsensitive) == 0;
        if (medoc || fichier.fileName().compare(QLatin1String("Ordo.mdb"), Qt::CaseInsensitive) == 0) {
            const auto genre = medoc ? storage::GenreBase::Medoc : storage::GenreBase::Ordo;
            arbre.Bases.append({fichier.filePath(), genre, arbre.Chemin});
        }
    }
}

void ChercheBases(Arbre& arbre)
{
    AjouteBases(arbre, arbre.Chemin);
    for (const QString& nom :
         QDir(arbre.Chemin).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase)) {
        const bool transfert = nom.startsWith(QLatin1String("Transfert."));
        if (!transfert && nom.compare(QLatin1String("Sauvegardes"), Qt::CaseInsensitive) != 0) {
            AjouteBases(arbre, Joint(arbre.Chemin, nom));
        }
    }
}

/// One tree may be named twice.
void Ajoute(QList<Arbre>& arbres, const QString& libelle, const QString& chemin)
{
    Arbre arbre{libelle, chemin, common::DossierExiste(chemin), messages::ArbreAbsent(), {}};
    const QString vrai = QFileInfo(chemin).canonicalFilePath();
    const auto meme = [&](const Arbre& autre) {
        return autre.Chemin == chemin ||
               (arbre.Present && QFileInfo(autre.Chemin).canonicalFilePath() == vrai);
    };
    if (chemin.isEmpty() || std::ranges::any_of(arbres, meme)) {
        return;
    }
    if (arbre.Present) {
        ChercheBases(arbre);
        arbre.Inacheve = TravailInacheve(chemin);
    }
    arbres.append(arbre);
}

void AjouteSupports(QList<Arbre>& arbres, const QStringList& volumes)
{
    const qsizetype avant = arbres.size();
    for (const QString& volume : volumes) {
        const QString chemin = Joint(volume, kArbre);
        if (common::DossierExiste(chemin)) {
            Ajoute(arbres, messages::Support(), chemin);
        }
    }
    if (arbres.size() == avant) {
        arbres.append({messages::Support(), {}, false, messages::SupportAbsent(), {}});
    }
}

} // namespace

QList<Arbre> TrouveArbres(const QString& cheminInstallation, const QStringList& volumes)
{
    constexpr quint8 kIndexSupport = 1;
    startup::Chemins chemins;
    startup::Medecins medecins;
    chemins.CheminInstallation = cheminInstallation;
    startup::LitCheminData(chemins);
    startup::LitCheminBase(chemins, medecins);
    QList<Arbre> arbres;
    Ajoute(arbres, messages::DisqueLocal(), chemins.CheminData);
    Ajoute(arbres, messages::Serveur(), chemins.CheminBase);
    if (chemins.IndexStockage == kIndexSupport) {
        AjouteSupports(arbres, volumes);
    }
    return arbres;
}

QString TravailInacheve(const QString& arbre)
{
    if (upgrade::JournalMaj::EnAttente(arbre)) {
        return messages::MajInachevee();
    }
    if (transfer::TransfertEnAttente(arbre)) {
        return messages::TransfertInacheve();
    }
    return backup::RestaurationEnCours(arbre) ? messages::RestaurationInachevee() : QString();
}

QStringList Volumes()
{
    QStringList volumes;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        if (volume.isValid() && volume.isReady()) {
            volumes.append(volume.rootPath());
        }
    }
    return volumes;
}

QList<BaseTrouvee> BasesDe(const QList<Arbre>& arbres)
{
    QList<BaseTrouvee> bases;
    for (const Arbre& arbre : arbres) {
        bases.append(arbre.Bases);
    }
    return bases;
}

} // namespace utile
