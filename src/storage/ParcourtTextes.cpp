// Reading two columns of 100 000 rows through QSqlQuery costs nearly twice the engine's own time, most of
// it in the conversion and the packing of each value. Here the engine strings a few thousand values
// together, and one conversion serves them all.
#include "storage/Base.h"

#include "storage/Pannes.h"
#include "storage/Schema.h"
#include "storage/messages.h"

#include <QSqlQuery>

#include <algorithm>

namespace storage {

namespace {

constexpr int kRangeesParBloc = 8192;
constexpr QChar kSeparateur(0x1E);

/// The engine takes a quoted name that is no column for a text: only the schema tells them apart.
bool Connait(const Table& table, const QString& nom)
{
    return std::ranges::find(table.Colonnes, nom, &Colonne::Nom) != table.Colonnes.end();
}

/// The columns as a statement names them.
QStringList NomsCites(const Base& base, const QString& table, const QStringList& colonnes)
{
    const Table* connue = ChercheTable(base.Genre(), table);
    QStringList noms;
    for (const QString& colonne : colonnes) {
        if (!connue || !Connait(*connue, colonne)) {
            throw Panne(InstructionRefuseeMessage, base.Chemin());
        }
        noms.append(Cite(colonne));
    }
    return noms;
}

/// One row a block: last key, number of rows, then each column's values strung together.
QString SelectDesBlocs(const QString& table, const QStringList& noms)
{
    QString sommes;
    for (qsizetype i = 0; i < noms.size(); ++i) {
        sommes += QStringLiteral(", cast(group_concat(ifnull(c%1, ''), char(30)) as blob)").arg(i);
    }
    QString internes;
    for (qsizetype i = 0; i < noms.size(); ++i) {
        internes += QStringLiteral(", %1 as c%2").arg(noms[i]).arg(i);
    }
    return QStringLiteral("select max(cle), count(*)%1 from (select rowid as cle%2 from %3 where rowid > ? "
                          "order by rowid limit %4)")
        .arg(sommes, internes, Cite(table))
        .arg(kRangeesParBloc);
}

struct Bloc
{
    qint64 DerniereCle = 0;
    qsizetype Rangees = 0;
    QStringList Textes; ///< one a column, values parted by `kSeparateur`
};

Bloc LitBloc(const QSqlQuery& requete, qsizetype colonnes)
{
    Bloc bloc{requete.value(0).toLongLong(), requete.value(1).toLongLong(), {}};
    for (qsizetype i = 0; bloc.Rangees > 0 && i < colonnes; ++i) {
        bloc.Textes.append(QString::fromUtf8(requete.value(static_cast<int>(i) + 2).toByteArray()));
    }
    return bloc;
}

/// A value that holds the separator itself makes the count wrong.
bool EstSepare(const Bloc& bloc)
{
    return std::ranges::all_of(bloc.Textes, [&](const QString& texte) {
        return QStringView(texte).count(kSeparateur) == bloc.Rangees - 1;
    });
}

void Distribue(const Bloc& bloc, const Base::LecteurDeTextes& lecteur)
{
    QList<QStringView> restes(bloc.Textes.begin(), bloc.Textes.end());
    QList<QStringView> rangee(restes.size());
    for (qsizetype n = 0; n < bloc.Rangees; ++n) {
        for (qsizetype i = 0; i < restes.size(); ++i) {
            const qsizetype fin = restes[i].indexOf(kSeparateur);
            rangee[i] = fin < 0 ? restes[i] : restes[i].first(fin);
            restes[i] = fin < 0 ? QStringView() : restes[i].sliced(fin + 1);
        }
        lecteur(std::span<const QStringView>(rangee.cbegin(), rangee.cend()));
    }
}

} // namespace

void Base::ParcourtTextes(const QString& table, const QStringList& colonnes, const LecteurDeTextes& lecteur)
{
    const QStringList noms = NomsCites(*this, table, colonnes);
    QSqlQuery requete = Prepare(SelectDesBlocs(table, noms));
    for (qint64 cle = std::numeric_limits<qint64>::min();;) {
        LieEtLance(requete, {cle});
        if (!Avance(requete)) {
            return;
        }
        const Bloc bloc = LitBloc(requete, noms.size());
        requete.finish();
        if (bloc.Rangees == 0) {
            return;
        }
        if (EstSepare(bloc)) {
            Distribue(bloc, lecteur);
        } else {
            ParcourtUnParUn(table, noms, cle, bloc.DerniereCle, lecteur);
        }
        cle = bloc.DerniereCle;
    }
}

void Base::ParcourtUnParUn(const QString& table, const QStringList& noms, qint64 apres, qint64 jusque,
                           const LecteurDeTextes& lecteur)
{
    const QString instruction =
        QStringLiteral("select %1 from %2 where rowid > ? and rowid <= ? order by rowid")
            .arg(noms.join(u','), Cite(table));
    Parcourt(instruction, {apres, jusque}, [&](const Rangee& rangee) {
        QStringList textes;
        for (int i = 0; i < noms.size(); ++i) {
            textes.append(rangee.Texte(i));
        }
        const QList<QStringView> vues(textes.cbegin(), textes.cend());
        lecteur(std::span<const QStringView>(vues.cbegin(), vues.cend()));
    });
}

} // namespace storage
