#include "bank/ThesaurusEcriture.h"

#include "bank/messages.h"
#include "common/Erreur.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace banque {

namespace {

/// A statement that throws what it cannot do.
class Instruction
{
public:
    Instruction(const QSqlDatabase& base, const QString& texte) : requete_(base)
    {
        requete_.setForwardOnly(true);
        Exige(requete_.prepare(texte));
    }

    QSqlQuery& Execute(const QVariantList& valeurs = {})
    {
        for (int i = 0; i < valeurs.size(); ++i) {
            requete_.bindValue(i, valeurs[i]);
        }
        Exige(requete_.exec());
        return requete_;
    }

private:
    void Exige(bool fait)
    {
        if (!fait) {
            throw common::Erreur(
                QStringLiteral("La banque refuse les interactions : %1").arg(requete_.lastError().text()),
                requete_.lastQuery());
        }
    }

    QSqlQuery requete_;
};

int Compte(const QSqlDatabase& base, const QString& texte)
{
    Instruction instruction(base, texte);
    QSqlQuery& requete = instruction.Execute();
    return requete.next() ? requete.value(0).toInt() : 0;
}

void EcritInformations(const QSqlDatabase& base, const Thesaurus& thesaurus)
{
    const QString& edition = thesaurus.Edition;
    Instruction information(base,
                            QStringLiteral("insert or replace into information(cle, valeur) values(?, ?)"));
    const QString titre = QStringLiteral("ANSM, Thésaurus des interactions médicamenteuses");
    information.Execute({QStringLiteral("source_thesaurus"),
                         edition.isEmpty() ? titre : titre + QStringLiteral(", ") + edition});
    information.Execute(
        {QStringLiteral("edition_thesaurus"), edition.isNull() ? QStringLiteral("") : edition});
    if (!thesaurus.VoiesLocales.isEmpty()) {
        information.Execute({QStringLiteral("voies_locales"), thesaurus.VoiesLocales});
    }
}

/// What is missing of a text would read as "no interaction". Each pair stands under both its sides, so that a
/// text that was cut has many under one alone.
void ExigeEntier(const BilanThesaurus& bilan, int couples)
{
    constexpr int kUneSur = 20;
    constexpr int kUniquesAdmis = 10; // the document itself forgets a few
    constexpr int kUniqueSur = 50;
    const int imprimees = bilan.Lues + bilan.SansNiveau;
    if (bilan.SansNiveau * kUneSur > imprimees) {
        throw common::Erreur(messages::ThesaurusIllisible(bilan.SansNiveau, imprimees), QString());
    }
    const int uniques = int(bilan.Uniques.size());
    if (uniques > kUniquesAdmis && uniques * kUniqueSur > couples) {
        throw common::Erreur(messages::ThesaurusCoupe(uniques, couples), QString());
    }
}

/// A text that is empty rather than null.
QString Present(const QString& texte)
{
    return texte.isNull() ? QStringLiteral("") : texte;
}

QString Part(int nombre, int total)
{
    return total > 0
               ? QString::number(100.0 * nombre / total, 'f', 1).replace(u'.', u',') + QStringLiteral(" %")
               : QStringLiteral("-");
}

} // namespace

QStringList ChiffresThesaurus::Lignes() const
{
    return {
        QStringLiteral("Interactions lues : %1 (%2 sans niveau lisible), %3 couples")
            .arg(Lues)
            .arg(SansNiveau)
            .arg(Interactions),
        QStringLiteral("Couples dont les deux côtés sont liés à une substance : %1 sur %2 (%3)")
            .arg(Liees)
            .arg(Interactions)
            .arg(Part(Liees, Interactions)),
        QStringLiteral(
            "Spécialités commercialisées, hors homéopathie, dont une substance est liée : %1 sur %2 (%3)")
            .arg(Verifiables)
            .arg(Specialites)
            .arg(Part(Verifiables, Specialites)),
        QStringLiteral("Couples imprimés d'un seul côté : %1 ; désaccords : %2")
            .arg(Uniques.size())
            .arg(Desaccords.size()),
    };
}

QList<SubstancePublique> ChargeSubstances(const QSqlDatabase& base)
{
    Instruction instruction(base, QStringLiteral("select code, nom from substances_noms order by code, nom"));
    QSqlQuery& requete = instruction.Execute();
    QList<SubstancePublique> substances;
    while (requete.next()) {
        const int code = requete.value(0).toInt();
        if (substances.isEmpty() || substances.last().Code != code) {
            substances.append(SubstancePublique{code, {}});
        }
        substances.last().Noms.append(requete.value(1).toString());
    }
    return substances;
}

QList<Fraction> ChargeFractions(const QSqlDatabase& base)
{
    Instruction instruction(
        base,
        QStringLiteral("select distinct sa, ft from (select min(case when nature = 'SA' then code end) sa,"
                       " min(case when nature = 'FT' then code end) ft from compositions"
                       " group by cis, element, lien having count(distinct code) = 2)"
                       " where sa is not null and ft is not null order by sa, ft"));
    QSqlQuery& requete = instruction.Execute();
    QList<Fraction> fractions;
    while (requete.next()) {
        fractions.append({requete.value(0).toInt(), requete.value(1).toInt()});
    }
    return fractions;
}

void EcritThesaurus(const QSqlDatabase& base, const Thesaurus& thesaurus, const LiensThesaurus& liens)
{
    Instruction entrees(base,
                        QStringLiteral("insert into thesaurus_entrees(id, nom, classe) values(?, ?, ?)"));
    for (int i = 0; i < thesaurus.Entrees.size(); ++i) {
        entrees.Execute({i + 1, thesaurus.Entrees[i].Nom, int(thesaurus.Entrees[i].Classe)});
    }
    Instruction classes(base, QStringLiteral("insert into thesaurus_classes(classe, membre) values(?, ?)"));
    for (const auto& [classe, membre] : thesaurus.Appartenances) {
        classes.Execute({classe + 1, membre + 1});
    }
    Instruction substances(base,
                           QStringLiteral("insert into thesaurus_substances(entree, code) values(?, ?)"));
    for (auto lien = liens.cbegin(); lien != liens.cend(); ++lien) {
        substances.Execute({lien.key() + 1, lien.value()});
    }
    Instruction interactions(
        base, QStringLiteral("insert into interactions(id, a, b, niveau, autre, conditionnelle, risque,"
                             " precaution) values(?, ?, ?, ?, ?, ?, ?, ?)"));
    for (int i = 0; i < thesaurus.Interactions.size(); ++i) {
        const Interaction& une = thesaurus.Interactions[i];
        interactions.Execute({i + 1, une.A + 1, une.B + 1, int(une.Niveau), int(une.Autre),
                              int(une.Conditionnelle), Present(une.Risque), Present(une.Precaution)});
    }
    EcritInformations(base, thesaurus);
}

ChiffresThesaurus ImporteThesaurus(const QSqlDatabase& base, QByteArrayView texte)
{
    const Thesaurus thesaurus = LitThesaurus(texte);
    if (thesaurus.Interactions.isEmpty()) {
        throw common::Erreur(messages::ThesaurusVide(), QString());
    }
    ExigeEntier(thesaurus.Bilan, int(thesaurus.Interactions.size()));
    const LiensThesaurus liens = Lie(thesaurus, ChargeSubstances(base), ChargeFractions(base));
    EcritThesaurus(base, thesaurus, liens);
    const QString vendues = QStringLiteral(
        "select count(*) from specialites where commercialisee and not homeopathie and cis not in (select "
        "cis from"
        " compositions where code in (select code from substances_noms where nom like '%HOMÉOPATH%'))");
    return {thesaurus.Bilan.Lues,
            thesaurus.Bilan.SansNiveau,
            int(thesaurus.Interactions.size()),
            NbInteractionsLiees(thesaurus, liens),
            Compte(base, vendues),
            Compte(base, vendues + QStringLiteral(" and cis in (select cis from compositions where code in"
                                                  " (select code from thesaurus_substances))")),
            thesaurus.Bilan.Desaccords,
            thesaurus.Bilan.Uniques};
}

} // namespace banque
