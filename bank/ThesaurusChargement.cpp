#include "bank/Selection.h"
#include "bank/ThesaurusNoms.h"
#include "bank/ThesaurusRapport.h"

#include "common/Erreur.h"

#include <QSqlDatabase>

namespace banque {

namespace {

/// The place of an entry by its number in the bank. Throws for a number without an entry.
int PlaceDe(const QHash<int, int>& places, const QVariant& id)
{
    const auto place = places.constFind(id.toInt());
    if (place == places.constEnd()) {
        throw common::Erreur(QStringLiteral("Les interactions de la banque sont incomplètes."),
                             id.toString());
    }
    return *place;
}

} // namespace

Interactions Interactions::DepuisBase(const QSqlDatabase& base)
{
    Thesaurus thesaurus;
    QHash<int, int> places;
    Selection(base, QStringLiteral("select id, nom, classe from thesaurus_entrees order by id"))
        .PourChaque([&](const QSqlQuery& r) {
            const QString nom = r.value(1).toString();
            places.insert(r.value(0).toInt(), int(thesaurus.Entrees.size()));
            thesaurus.ParCle.insert(CleDeNom(nom), int(thesaurus.Entrees.size()));
            thesaurus.Entrees.append({nom, CleDeNom(nom), r.value(2).toBool()});
        });
    Selection(base, QStringLiteral("select classe, membre from thesaurus_classes"))
        .PourChaque([&](const QSqlQuery& r) {
            thesaurus.Appartenances.append({PlaceDe(places, r.value(0)), PlaceDe(places, r.value(1))});
        });
    Selection(
        base,
        QStringLiteral(
            "select a, b, niveau, autre, conditionnelle, risque, precaution from interactions order by id"))
        .PourChaque([&](const QSqlQuery& r) {
            thesaurus.Interactions.append({PlaceDe(places, r.value(0)), PlaceDe(places, r.value(1)),
                                           Niveau(qBound(0, r.value(2).toInt(), 3)), r.value(3).toBool(),
                                           r.value(4).toBool(), r.value(5).toString(),
                                           r.value(6).toString()});
        });
    LiensThesaurus liens;
    Selection(base, QStringLiteral("select entree, code from thesaurus_substances"))
        .PourChaque(
            [&](const QSqlQuery& r) { liens.insert(PlaceDe(places, r.value(0)), r.value(1).toInt()); });
    return Interactions(thesaurus, liens);
}

} // namespace banque
