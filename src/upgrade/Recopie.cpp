#include "upgrade/Recopie.h"

namespace upgrade {

using storage::Cite;

Recopie::Recopie(const QString& copie, storage::GenreBase genre, const QList<const Source*>& sources,
                 Suivi& suivi)
    : suivi_(suivi), base_(copie, genre)
{
    if (suivi_.Pas) {
        base_.PoseCrochet([this](const QString&) {
            suivi_.Coupe();
            return false;
        });
    }
    for (qsizetype i = 0; i < sources.size(); ++i) {
        base_.Execute(QStringLiteral("attach database ? as source%1").arg(i), {sources[i]->Chemin()});
    }
    // The journal mode goes for the sources too, which are only locked: they need none. The cache has room
    // for the pages of a large practice, so that each is written once.
    for (const char* reglage : {"journal_mode = memory", "temp_store = memory", "cache_size = -262144"}) {
        base_.Execute(QStringLiteral("pragma ") + QLatin1String(reglage));
    }
    transaction_ = std::make_unique<storage::Transaction>(base_);
    RetireIndexes();
}

void Recopie::RetireIndexes()
{
    for (const storage::Index& index : storage::Indexes(base_.Genre())) {
        base_.Execute(QStringLiteral("drop index if exists main.") + Cite(index.Nom));
    }
}

void Recopie::Copie(int source, const storage::Table& depuis, const QString& vers, const QStringList& champs)
{
    const QString de = TableDe(source, depuis);
    const QString instruction = QStringLiteral("insert into main.%1 (%2) select %3 from %4 s "
                                               "where s.rowid between ? and ? order by s.rowid")
                                    .arg(Cite(vers), Colonnes(Destination(vers), champs.size()),
                                         champs.join(QLatin1String(", ")), de);
    const qint64 lignes = Nombre(QStringLiteral("select count(*) from ") + de);
    const auto premier = static_cast<quint64>(Nombre(QStringLiteral("select min(rowid) from ") + de));
    const auto dernier = static_cast<quint64>(Nombre(QStringLiteral("select max(rowid) from ") + de));
    const auto tranches = static_cast<quint64>(1 + lignes / kTranche);
    const quint64 largeur = (dernier - premier) / tranches;
    for (quint64 i = 0; lignes > 0 && i < tranches; ++i) {
        const quint64 debut = premier + i * largeur + (i > 0 ? 1 : 0);
        const quint64 fin = i + 1 == tranches ? dernier : premier + (i + 1) * largeur;
        base_.Execute(instruction, {static_cast<qint64>(debut), static_cast<qint64>(fin)});
        suivi_.Avance(lignes / static_cast<qint64>(tranches));
    }
}

void Recopie::Execute(const QString& instruction, const QVariantList& valeurs)
{
    base_.Execute(instruction, valeurs);
    suivi_.Avance(0);
}

qint64 Recopie::Nombre(const QString& select)
{
    qint64 nombre = 0;
    base_.Parcourt(select, {}, [&](const storage::Rangee& rangee) { nombre = rangee.Entier(0); });
    return nombre;
}

void Recopie::Valide()
{
    for (const storage::Index& index : storage::Indexes(base_.Genre())) {
        Execute(storage::CreeIndexSql(index));
    }
    transaction_->Valide();
    transaction_.reset();
}

QString TableDe(int source, const storage::Table& table)
{
    return QStringLiteral("source%1.").arg(source) + Cite(table.Nom);
}

QString Colonnes(const storage::Table& table, qsizetype nombre)
{
    QStringList noms;
    for (qsizetype i = 0; i < nombre; ++i) {
        noms.append(Cite(table.Colonnes[i].Nom));
    }
    return noms.join(QLatin1String(", "));
}

} // namespace upgrade
