#include "Chantier.h"

#include "Arbres.h"
#include "Garde.h"
#include "Reconstruction.h"
#include "Releve.h"
#include "messages.h"

#include "backup/VerrouArbre.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "storage/Base.h"
#include "storage/Pannes.h"
#include "storage/Verification.h"
#include "storage/messages.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QScopeGuard>

#include <algorithm>

namespace utile {

namespace {

constexpr qint64 kEntete = 100;
constexpr qint64 kBloc = 1024 * 1024;
constexpr qint64 kPage = 4096;

QString Journal(const QString& chemin)
{
    return chemin + QStringLiteral("-journal");
}

/// All the bytes; what the disk does not give any more is zeros.
QByteArray LitCeQuiSeLit(QFile& fichier)
{
    QByteArray octets(fichier.size(), '\0');
    const auto lit = [&](qint64 debut, qint64 nombre) {
        nombre = std::min<qint64>(nombre, octets.size() - debut);
        return fichier.seek(debut) && fichier.read(octets.data() + debut, nombre) == nombre;
    };
    for (qint64 debut = 0; debut < octets.size(); debut += kBloc) {
        if (!lit(debut, kBloc)) {
            const qint64 fin = std::min<qint64>(debut + kBloc, octets.size());
            for (qint64 page = debut; page < fin; page += kPage) {
                if (!lit(page, kPage)) {
                    std::fill_n(octets.begin() + page, std::min(kPage, fin - page), '\0');
                }
            }
        }
    }
    return octets;
}

bool EstDuModele(const QString& nom, storage::GenreBase genre)
{
    const auto& tables = storage::Tables(genre);
    return std::ranges::find(tables, nom, &storage::Table::Nom) != tables.end();
}

/// The rows of tables that this kind of database has.
qint64 LignesDesNotres(const Releve& releve, storage::GenreBase genre)
{
    qint64 lignes = 0;
    for (const TableRelevee& table : releve.Tables()) {
        lignes += EstDuModele(table.Table.Nom, genre) ? static_cast<qint64>(table.Lignes.size()) : 0;
    }
    return lignes;
}

QList<BilanTable> SansPerte(const QList<std::pair<QString, qint64>>& lignes)
{
    QList<BilanTable> tables;
    for (const auto& [nom, nombre] : lignes) {
        tables.append(BilanTable{nom, nombre, 0, false, false, 0});
    }
    return tables;
}

} // namespace

Chantier::Chantier(Bilan& bilan, const QDateTime& moment)
    : bilan_(bilan), moment_(moment), ebauche_(bilan.Base.Chemin + SuffixeEbauche()),
      fichier_(bilan.Base.Chemin)
{}

Chantier::EtatFichier Chantier::EtatDuFichier() const
{
    const QFileInfo info(bilan_.Base.Chemin);
    return {info.size(), info.lastModified()};
}

void Chantier::Laisse(const QString& etat, const QString& phrase)
{
    bilan_.Issue = Issue::Laissee;
    bilan_.Avant = etat;
    bilan_.Apres = messages::Inchangee();
    bilan_.Phrase = phrase;
}

void Chantier::LaisseOccupee(const QString& programme)
{
    Laisse(messages::EnService(), messages::UtiliseePar(programme));
    RetireCopie();
}

void Chantier::Execute()
{
    const QString& chemin = bilan_.Base.Chemin;
    const backup::VerrouArbre arbre(bilan_.Base.Arbre);
    QLockFile verrou(chemin + QStringLiteral(".lock"));
    const QString programme = ProgrammeQuiTient(chemin);
    if (!programme.isEmpty() || arbre.PrisAilleurs() || !verrou.tryLock(0)) {
        LaisseOccupee(programme);
        return;
    }
    RetireEbauches();
    RetireSecondsNoms(bilan_.Base);
    const auto nettoyage = qScopeGuard([this] { RetireEbauches(); });
    if (!fichier_.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        throw storage::Panne(storage::messages::BaseIllisible, chemin);
    }
    journal_ = QFileInfo(Journal(chemin)).size() > 0;
    if (journal_) {
        // The opening will play it: what stands here is kept before.
        bilan_.Copie = CheminDeGarde(bilan_.Base, moment_);
        GardeAvecJournal(fichier_, bilan_.Copie);
    }
    Tenue tenue(chemin);
    tenue_ = &tenue;
    if (tenue.EtatActuel() == Tenue::Etat::Occupee) {
        LaisseOccupee(ProgrammeQuiTient(chemin));
    } else {
        Soigne();
    }
    tenue_ = nullptr;
    tenue.Libere();
    fichier_.close();
}

void Chantier::Soigne()
{
    avant_ = EtatDuFichier();
    // None can begin from here on: they need the databases.
    if (const QString travail = TravailInacheve(bilan_.Base.Arbre); !travail.isEmpty()) {
        Laisse(messages::EnAttente(), travail + messages::BaseResteTelle());
        RetireCopie();
        return;
    }
    fichier_.seek(0);
    const PagesSqlite entete(fichier_.read(kEntete));
    if (!EstLaNotre(entete)) {
        return;
    }
    const bool marquee = entete.Marque() == storage::MarqueApplication(bilan_.Base.Genre);
    const bool saine = tenue_->EtatActuel() == Tenue::Etat::Tenue && marquee &&
                       avant_.Taille >= tenue_->Nombre(QStringLiteral("page_count")) *
                                            tenue_->Nombre(QStringLiteral("page_size")) &&
                       tenue_->EstIntegre();
    if (!saine) {
        Repare(messages::Endommagee());
    } else if (!Compacte(entete.Version())) {
        Repare(messages::DispositionIncomplete());
    }
}

/// What the header tells, as far as it can be read.
bool Chantier::EstLaNotre(const PagesSqlite& entete)
{
    const auto genre = bilan_.Base.Genre;
    const auto autre =
        genre == storage::GenreBase::Medoc ? storage::GenreBase::Ordo : storage::GenreBase::Medoc;
    if (entete.EnteteLisible() && entete.Marque() == storage::MarqueApplication(autre)) {
        Laisse(messages::PasUneBase(), messages::AutreGenre());
        return false;
    }
    if (entete.EnteteLisible() && entete.Marque() == storage::MarqueApplication(genre) &&
        entete.Version() > storage::kVersionSchema) {
        Laisse(messages::TropRecente(), messages::VersionPlusRecente());
        return false;
    }
    return true;
}

/// False when tables are missing that a database of this version has.
bool Chantier::Compacte(int version)
{
    const QList<BilanTable> tables = SansPerte(tenue_->Lignes());
    const bool libres = tenue_->Nombre(QStringLiteral("freelist_count")) > 0;
    bilan_.Avant = messages::Saine();
    tenue_->CompacteVers(ebauche_);
    if (version == storage::kVersionSchema) {
        storage::Base base(ebauche_, bilan_.Base.Genre, storage::Disposition::Telle);
        if (!common::Tolere([&] { storage::VerifieTables(base); })) { // it tells by failing
            return false;
        }
    }
    ExigeEbauche(tables);
    bilan_.Tables = tables;
    bilan_.Issue = Issue::Saine;
    bilan_.Apres = messages::DejaCompacte();
    if (libres || QFileInfo(ebauche_).size() < bilan_.TailleAvant) {
        MetEnPlace();
        bilan_.Apres = messages::Compactee();
    }
    return true;
}

void Chantier::Repare(const QString& etat)
{
    RetireEbauches();
    bilan_.Avant = etat;
    const PagesSqlite pages(LitCeQuiSeLit(fichier_));
    const Releve releve(pages, bilan_.Base.Genre);
    if (LignesDesNotres(releve, bilan_.Base.Genre) == 0) {
        const bool marquee =
            pages.EnteteLisible() && pages.Marque() == storage::MarqueApplication(bilan_.Base.Genre);
        marquee ? Laisse(messages::Irreparable(), messages::RienALire())
                : Laisse(messages::PasUneBase(), messages::Etrangere());
        return;
    }
    const QList<BilanTable> tables = Reconstruit(pages, releve, ebauche_, bilan_.Base.Genre);
    ExigeEbauche(tables);
    MetEnPlace();
    bilan_.Tables = tables;
    DitLeResultat(pages, releve);
}

void Chantier::DitLeResultat(const PagesSqlite& pages, const Releve& releve)
{
    const bool entiere = releve.SansTable() == 0 && std::ranges::all_of(bilan_.Tables, &BilanTable::Entiere);
    bilan_.Issue = entiere ? Issue::Saine : Issue::Pertes;
    bilan_.Apres = entiere ? messages::Reparee() : messages::RepareeAvecPertes();
    QStringList phrases;
    if (!entiere) {
        phrases.append(messages::LignesPerdues());
    }
    if (releve.SansTable() > 0) {
        phrases.append(messages::LignesSansTable(releve.SansTable()));
    }
    if (!pages.EnteteLisible() || !releve.ListeEntiere()) {
        phrases.append(messages::PeutEtreSupprimees());
    }
    bilan_.Phrase = phrases.join(u'\n');
}

/// The draft is read again: whole, and with the rows that it must have.
void Chantier::ExigeEbauche(const QList<BilanTable>& tables) const
{
    Tenue ebauche(ebauche_);
    const bool tenue = ebauche.EtatActuel() == Tenue::Etat::Tenue;
    const auto lignes = tenue ? ebauche.Lignes() : QList<std::pair<QString, qint64>>();
    const auto presente = [&](const BilanTable& table) {
        return lignes.contains(std::pair(table.Nom, table.Gardees));
    };
    if (!tenue || !ebauche.EstIntegre() || !std::ranges::all_of(tables, presente)) {
        throw common::Erreur(messages::CopieDifferente(), common::CheminAffiche(bilan_.Base.Chemin));
    }
}

/// At no moment there is no file of that name.
void Chantier::MetEnPlace()
{
    const QString& chemin = bilan_.Base.Chemin;
    if (bilan_.Copie.isEmpty()) {
        const QString copie = CheminDeGarde(bilan_.Base, moment_);
        Garde(fichier_, copie);
        bilan_.Copie = copie;
    }
    QFile::setPermissions(ebauche_, QFile::permissions(chemin) | QFile::WriteOwner | QFile::WriteUser);
#ifdef Q_OS_WIN
    // An open file cannot be replaced there.
    tenue_->Libere();
    fichier_.close();
#endif
    if (EtatDuFichier() != avant_) {
        throw common::Erreur(messages::ChangeePendant(), common::CheminAffiche(chemin));
    }
    // It would be played into the new file.
    common::SupprimeFichier(Journal(chemin));
    common::MetEnPlace(ebauche_, chemin);
    bilan_.TailleApres = QFileInfo(chemin).size();
}

/// A copy of a file that nothing was done to.
void Chantier::RetireCopie()
{
    if (!bilan_.Copie.isEmpty()) {
        // One that stays does no harm.
        common::Tolere([&] { common::SupprimeFichier(bilan_.Copie); });
        common::Tolere([&] { common::SupprimeFichier(Journal(bilan_.Copie)); });
        bilan_.Copie.clear();
    }
}

/// Those of this work and of one that was interrupted.
void Chantier::RetireEbauches() const
{
    const QFileInfo info(ebauche_);
    for (const QString& nom : QDir(info.path()).entryList(QDir::Files | QDir::Hidden)) {
        if (nom.startsWith(info.fileName())) {
            // What cannot be removed will be at the next time.
            common::Tolere([&] { common::SupprimeFichier(common::Joint(info.path(), nom)); });
        }
    }
}

} // namespace utile
