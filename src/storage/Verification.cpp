#include "storage/Verification.h"

#include "common/Tolere.h"
#include "storage/Base.h"
#include "storage/EnteteJet.h"
#include "storage/EstUneBase.h"
#include "storage/Pannes.h"
#include "storage/messages.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace storage {

namespace {

/// A quick check reads the whole file: about 1 ms a megabyte from a warm disk, but many seconds for a large
/// file on a slow server, at each start. Above this size the engine's own checks remain: a truncated file is
/// refused at its first reading, and a damaged page when it is read.
constexpr qint64 kTailleVerifiee = 8LL * 1024 * 1024;

QString NomAttendu(GenreBase genre)
{
    return genre == GenreBase::Medoc ? QStringLiteral("Medoc.mdb") : QStringLiteral("Ordo.mdb");
}

QString LitTexte(Base& base, const QString& instruction)
{
    QString texte;
    base.Parcourt(instruction, {}, [&](const Rangee& rangee) { texte = rangee.Texte(0); });
    return texte;
}

void VerifieMarques(Base& base)
{
    const int marque = LitTexte(base, QStringLiteral("pragma application_id")).toInt();
    const GenreBase autre = base.Genre() == GenreBase::Medoc ? GenreBase::Ordo : GenreBase::Medoc;
    if (marque == MarqueApplication(autre)) {
        const QString nom = QFileInfo(base.Chemin()).fileName();
        throw common::Erreur(messages::AutreGenre(nom, NomAttendu(base.Genre())), base.Chemin());
    }
    if (marque != MarqueApplication(base.Genre())) {
        throw Panne(messages::PasUneBase, base.Chemin());
    }
    if (VersionDuFichier(base) > kVersionSchema) {
        throw Panne(messages::BaseTropRecente, base.Chemin());
    }
}

/// The engine takes a last page that was cut for one filled with zeros.
void VerifieTaille(Base& base)
{
    const qint64 pages = LitTexte(base, QStringLiteral("pragma page_count")).toLongLong();
    const qint64 taille = LitTexte(base, QStringLiteral("pragma page_size")).toLongLong();
    if (QFileInfo(base.Chemin()).size() < pages * taille) {
        throw Panne(messages::BaseEndommagee, base.Chemin());
    }
}

} // namespace

void VerifieFichier(const QString& chemin)
{
    const QFileInfo info(chemin);
    if (!info.isFile()) {
        throw Panne(info.exists() ? messages::PasUneBase : messages::BaseAbsente, chemin);
    }
    if (EstUneBase(chemin)) {
        return;
    }
    if (!QFile(chemin).open(QIODevice::ReadOnly)) {
        throw Panne(messages::BaseIllisible, chemin);
    }
    const bool jet = LitFormatJet(chemin) != FormatJet::Aucun;
    throw Panne(jet ? messages::JetNonConvertie : messages::PasUneBase, chemin);
}

void VerifieContenu(Base& base)
{
    VerifieMarques(base);
    VerifieTaille(base);
    const bool verifiable = QFileInfo(base.Chemin()).size() <= kTailleVerifiee;
    if (verifiable && LitTexte(base, QStringLiteral("pragma quick_check(1)")) != QLatin1String("ok")) {
        throw Panne(messages::BaseEndommagee, base.Chemin());
    }
}

void VerifieEnEntier(Base& base)
{
    if (LitTexte(base, QStringLiteral("pragma integrity_check(1)")) != QLatin1String("ok")) {
        throw Panne(messages::BaseEndommagee, base.Chemin());
    }
}

int VersionDuFichier(Base& base)
{
    return LitTexte(base, QStringLiteral("pragma user_version")).toInt();
}

QList<Table> TablesDuFichier(Base& base)
{
    QList<Table> tables;
    const auto lit = [&](const Rangee& rangee) {
        if (tables.isEmpty() || tables.last().Nom != rangee.Texte(0)) {
            tables.append(Table{rangee.Texte(0), {}});
        }
        const TypeColonne type = TypeDeclare(rangee.Texte(2), rangee.Entier(3) != 0);
        tables.last().Colonnes.append({rangee.Texte(1), type});
    };
    base.Parcourt(
        QStringLiteral("select t.name, c.name, c.type, c.pk "
                       "from sqlite_master t join pragma_table_info(t.name) c "
                       "where t.type = 'table' and t.name not like 'sqlite_%' order by t.rowid, c.cid"),
        {}, lit);
    return tables;
}

void VerifieTables(Base& base)
{
    const QList<Table> presentes = TablesDuFichier(base);
    for (const Table& table : Tables(base.Genre())) {
        const auto presente = std::ranges::find(presentes, table.Nom, &Table::Nom);
        const bool pareille =
            presente != presentes.end() &&
            std::ranges::equal(presente->Colonnes, table.Colonnes, {}, &Colonne::Nom, &Colonne::Nom);
        if (!pareille) {
            throw Panne(messages::BaseEndommagee, base.Chemin());
        }
    }
}

void CompleteIndexes(Base& base)
{
    QStringList presents;
    base.Parcourt(QStringLiteral("select name from sqlite_master where type = 'index'"), {},
                  [&](const Rangee& rangee) { presents.append(rangee.Texte(0)); });
    const QString attente = LitTexte(base, QStringLiteral("pragma busy_timeout"));
    for (const Index& index : Indexes(base.Genre())) {
        if (!presents.contains(index.Nom)) {
            // Without it the selections are slow and right. A share may be read-only, or in use: nobody
            // waits.
            common::Tolere([&] {
                base.Execute(QStringLiteral("pragma busy_timeout = 0"));
                base.Execute(CreeIndexSql(index));
            });
        }
    }
    base.Execute(QStringLiteral("pragma busy_timeout = ") + attente);
}

} // namespace storage
