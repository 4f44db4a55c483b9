// Reading two columns of 100 000 rows through QSqlQuery costs nearly twice the engine's own time, most of
// it in the conversion and the packing of each value. Here the engine strings the values of a column
// together, and one conversion serves them all.
#include "storage/Base.h"

#include "storage/Pannes.h"
#include "storage/Schema.h"
#include "storage/messages.h"

#include <QSqlQuery>

#include <algorithm>

namespace storage {

namespace {

constexpr QChar kSeparateur(0x1E);
// The same in a statement as a literal: char(30) would be worked out anew for each row.
constexpr char16_t kSommeDe[] = u", cast(group_concat(ifnull(%1, ''), '\x1E') as blob)";

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

/// One row: the number of rows, then each column's values strung together. Without an index the engine
/// visits the rows in stored order.
QString SelectDesColonnes(const QString& table, const QStringList& noms)
{
    QString sommes;
    for (const QString& nom : noms) {
        sommes += QString::fromUtf16(kSommeDe).arg(nom);
    }
    return QStringLiteral("select count(*)%1 from %2 not indexed").arg(sommes, Cite(table));
}

struct Colonnes
{
    qsizetype Rangees = 0;
    QStringList Textes; ///< one a column, values parted by `kSeparateur`
};

Colonnes LitColonnes(const QSqlQuery& requete, qsizetype nombre)
{
    Colonnes colonnes{requete.value(0).toLongLong(), {}};
    for (qsizetype i = 0; i < nombre; ++i) {
        colonnes.Textes.append(QString::fromUtf8(requete.value(static_cast<int>(i) + 1).toByteArray()));
    }
    return colonnes;
}

/// A value that holds the separator itself makes the count wrong.
bool SontSeparees(const Colonnes& colonnes)
{
    return std::ranges::all_of(colonnes.Textes, [&](const QString& texte) {
        return QStringView(texte).count(kSeparateur) == colonnes.Rangees - 1;
    });
}

void Distribue(const Colonnes& colonnes, const Base::LecteurDeTextes& lecteur)
{
    QList<QStringView> restes(colonnes.Textes.begin(), colonnes.Textes.end());
    QList<QStringView> rangee(restes.size());
    for (qsizetype n = 0; n < colonnes.Rangees; ++n) {
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
    Colonnes lues;
    {
        QSqlQuery requete = Lance(SelectDesColonnes(table, noms), {});
        Avance(requete);
        lues = LitColonnes(requete, noms.size());
    }
    if (SontSeparees(lues)) {
        Distribue(lues, lecteur);
    } else {
        ParcourtUnParUn(table, noms, lecteur);
    }
}

void Base::ParcourtUnParUn(const QString& table, const QStringList& noms, const LecteurDeTextes& lecteur)
{
    const QString instruction =
        QStringLiteral("select %1 from %2 order by rowid").arg(noms.join(u','), Cite(table));
    Parcourt(instruction, {}, [&](const Rangee& rangee) {
        QStringList textes;
        for (int i = 0; i < noms.size(); ++i) {
            textes.append(rangee.Texte(i));
        }
        const QList<QStringView> vues(textes.cbegin(), textes.cend());
        lecteur(std::span<const QStringView>(vues.cbegin(), vues.cend()));
    });
}

} // namespace storage
