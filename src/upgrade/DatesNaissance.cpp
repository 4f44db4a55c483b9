#include "upgrade/DatesNaissance.h"

#include "upgrade/IndexNoms.h"

#include <algorithm>

namespace upgrade {

namespace {

/// So many rows go into one statement.
constexpr qsizetype kRangees = 400;

struct PatientsConnus
{
    QStringList Noms;
    QStringList Dates;
};

/// A null is an empty field.
PatientsConnus LitPatients(Recopie& recopie)
{
    PatientsConnus patients;
    recopie.Base().Parcourt(
        QStringLiteral(
            "select ifnull(NomPatient, ''), ifnull(Datenais, '') from main.Patients order by rowid"),
        {}, [&](const storage::Rangee& rangee) {
            patients.Noms.append(rangee.Texte(0));
            patients.Dates.append(rangee.Texte(1));
        });
    return patients;
}

/// Names and their dates, in turn.
void RetientDates(Recopie& recopie, const QVariantList& paires)
{
    for (qsizetype i = 0; i < paires.size(); i += 2 * kRangees) {
        const QVariantList lot = paires.mid(i, 2 * kRangees);
        const QStringList places(lot.size() / 2, QStringLiteral("(?, ?)"));
        recopie.Execute(QStringLiteral("insert into temp.Dates values ") + places.join(u','), lot);
    }
}

} // namespace

bool DatesARepare(Recopie& recopie, const QString& de, const QString& nom, const QString& date)
{
    return recopie.Nombre(QStringLiteral("select exists(select 1 from %1 where %2 <> '*' and %3 = '0')")
                              .arg(de, nom, date)) != 0;
}

void PrepareDates(Recopie& recopie, const QStringList& selectsDesNoms)
{
    const PatientsConnus patients = LitPatients(recopie);
    const IndexNoms index(patients.Noms);
    QVariantList paires;
    recopie.Base().Parcourt(selectsDesNoms.join(QLatin1String(" union ")), {},
                            [&](const storage::Rangee& rangee) {
                                const QString nom = rangee.Texte(0);
                                if (const int rang = index.DernierContenu(nom); rang >= 0) {
                                    paires << nom << patients.Dates[rang];
                                }
                            });
    recopie.Execute(
        QStringLiteral("create temp table Dates (Nom text primary key, Datenais text) without rowid"));
    RetientDates(recopie, paires);
}

QString DateRepare(const QString& nom, const QString& date)
{
    return QStringLiteral("ifnull((select d.Datenais from temp.Dates d where d.Nom = %1), %2)")
        .arg(nom, date);
}

} // namespace upgrade
