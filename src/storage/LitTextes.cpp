// Reading two columns of 100 000 rows through QSqlQuery costs nearly twice the engine's own time, most of
// it in the conversion and the packing of each value. Here the engine strings the values of a column
// together, and one conversion serves them all.
#include "storage/Base.h"

#include "storage/Pannes.h"
#include "storage/Rangee.h"
#include "storage/Schema.h"
#include "storage/Textes.h"
#include "storage/messages.h"

#include <QSqlQuery>

#include <algorithm>
#include <charconv>

namespace storage {

namespace {

constexpr char kSeparateur = 0x1E;

/// The engine takes a quoted name that is no column for a text: only the schema tells them apart.
bool Connait(const Base& base, const QString& table, const QString& colonne)
{
    const Table* connue = base.ChercheTable(table);
    return connue && std::ranges::find(connue->Colonnes, colonne, &Colonne::Nom) != connue->Colonnes.end();
}

/// One row: the number of rows, then the values of both columns strung together. Without an index the
/// engine visits the rows in stored order. The separator is a literal: char(30) would be worked out anew
/// for each row.
QString SelectDesSuites(const QString& table, const QString& cle, const QString& texte)
{
    return QStringLiteral("select count(*), "
                          "cast(group_concat(ifnull(cast(%1 as integer), 0), '\x1E') as blob), "
                          "cast(group_concat(ifnull(%2, ''), '\x1E') as blob) from %3 not indexed")
        .arg(Cite(cle), Cite(texte), Cite(table));
}

void LitCles(const QByteArray& suite, std::vector<Textes::Rangee>& rangees)
{
    const char* place = suite.cbegin();
    for (Textes::Rangee& rangee : rangees) {
        place = std::from_chars(place, suite.cend(), rangee.Cle).ptr;
        place += place != suite.cend() ? 1 : 0; // the separator
    }
}

/// Gives each row its stretch of the block. False when there are more stretches than rows, since a text
/// holds the separator itself.
bool Decoupe(Textes& textes)
{
    const QStringView bloc(textes.Bloc);
    qsizetype debut = 0;
    for (Textes::Rangee& rangee : textes.Rangees) {
        const qsizetype trouve = bloc.indexOf(QLatin1Char(kSeparateur), debut);
        const qsizetype fin = trouve < 0 ? bloc.size() : trouve;
        rangee.Debut = static_cast<quint32>(debut);
        rangee.Longueur = static_cast<quint32>(fin - debut);
        debut = fin + 1;
    }
    return textes.Rangees.empty() || debut == bloc.size() + 1;
}

} // namespace

Textes Base::LitTextes(const QString& table, const QString& cle, const QString& texte)
{
    if (!Connait(*this, table, cle) || !Connait(*this, table, texte)) {
        throw Panne(messages::InstructionRefusee, chemin_);
    }
    Textes textes;
    {
        QSqlQuery requete = Lance(SelectDesSuites(table, cle, texte), {});
        Avance(requete);
        textes.Rangees.resize(requete.value(0).toULongLong());
        LitCles(requete.value(1).toByteArray(), textes.Rangees);
        textes.Bloc = QString::fromUtf8(requete.value(2).toByteArray());
    }
    return Decoupe(textes) ? textes : LitTextesUnParUn(table, cle, texte);
}

Textes Base::LitTextesUnParUn(const QString& table, const QString& cle, const QString& texte)
{
    Textes textes;
    Parcourt(QStringLiteral("select %1, %2 from %3 order by rowid").arg(Cite(cle), Cite(texte), Cite(table)),
             {}, [&](const Rangee& rangee) { textes.Ajoute(rangee.Entier(0), rangee.Texte(1)); });
    return textes;
}

} // namespace storage
