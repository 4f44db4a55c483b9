#include "support/BaseDeTest.h"

#include "storage/Schema.h"

namespace support {

BaseDeTest::BaseDeTest()
{
    storage::CreeBase(Chemin(QStringLiteral("Medoc.mdb")), storage::GenreBase::Medoc);
    storage::CreeBase(Chemin(QStringLiteral("Ordo.mdb")), storage::GenreBase::Ordo);
}

void AjouteLigne(storage::Base& base, const QString& table, const QVariantList& champs)
{
    storage::Jeu jeu = base.Selection(table, QStringLiteral("0"), {});
    jeu.AddNew();
    for (int i = 0; i < champs.size(); ++i) {
        if (champs[i].isValid()) {
            jeu.Ecris(i, champs[i]);
        }
    }
    jeu.Update();
}

QStringList Lignes(storage::Base& base, const QString& table)
{
    const qsizetype colonnes = base.ChercheTable(table)->Colonnes.size();
    QStringList lignes;
    for (storage::Jeu jeu = base.Table(table); !jeu.Fin(); jeu.MoveNext()) {
        QStringList champs;
        for (int i = 0; i < colonnes; ++i) {
            champs.append(jeu.EstNull(i) ? QStringLiteral("<null>") : jeu.Texte(i));
        }
        lignes.append(champs.join(u'|'));
    }
    return lignes;
}

} // namespace support
