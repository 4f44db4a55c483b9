#include "patients/Fiche.h"

#include "storage/Base.h"
#include "storage/Jeu.h"

#include <array>

namespace patients {

namespace {

QString Table()
{
    return QStringLiteral("Patients");
}

QString ConditionIndex()
{
    return QStringLiteral("\"Index\" = ?");
}

/// The fields by column position, from 1.
constexpr std::array<QString Fiche::*, 10> kChamps = {
    &Fiche::Titre, &Fiche::NomPatient,  &Fiche::Datenais, &Fiche::Poids,      &Fiche::Precautions,
    &Fiche::Notes, &Fiche::Antecedents, &Fiche::Adresse,  &Fiche::Telephone1, &Fiche::Telephone2};

/// The empty text is stored as such, never as null.
QVariant NonNul(const QString& texte)
{
    return texte.isNull() ? QString(QLatin1String("")) : texte;
}

void EcritChamps(storage::Jeu& jeu, const Fiche& fiche)
{
    for (size_t i = 0; i < kChamps.size(); ++i) {
        jeu.Ecris(static_cast<int>(i) + 1, NonNul(fiche.*kChamps[i]));
    }
}

} // namespace

std::optional<Fiche> LitFiche(storage::Base& medoc, int index)
{
    const storage::Jeu jeu = medoc.Selection(Table(), ConditionIndex(), {index});
    if (jeu.Fin()) {
        return std::nullopt;
    }
    Fiche fiche;
    for (size_t i = 0; i < kChamps.size(); ++i) {
        fiche.*kChamps[i] = jeu.Texte(static_cast<int>(i) + 1);
    }
    if (fiche.Poids.isEmpty()) {
        fiche.Poids = QStringLiteral("0");
    }
    return fiche;
}

int AjouteFiche(storage::Base& medoc, const Fiche& fiche)
{
    storage::Jeu jeu = medoc.Selection(Table(), QStringLiteral("0"), {});
    jeu.AddNew();
    const int index = jeu.Champ(0).toInt();
    EcritChamps(jeu, fiche);
    jeu.Update();
    return index;
}

bool ChangeFiche(storage::Base& medoc, int index, const Fiche& fiche)
{
    storage::Jeu jeu = medoc.Selection(Table(), ConditionIndex(), {index});
    if (jeu.Fin()) {
        return false;
    }
    jeu.Edit();
    EcritChamps(jeu, fiche);
    jeu.Update();
    return true;
}

void SupprimeFiche(storage::Base& medoc, int index, const QString& patientCourant,
                   const QString& dateNaissance)
{
    const QVariantList cle = {NonNul(patientCourant.trimmed()), NonNul(dateNaissance)};
    storage::Transaction transaction(medoc);
    medoc.SupprimeOu(Table(), ConditionIndex(), {index});
    medoc.SupprimeOu(QStringLiteral("OrdoEnr"),
                     QStringLiteral("Patient = ? AND Datenais = ? AND Patient <> '*'"), cle);
    medoc.SupprimeOu(QStringLiteral("ListeOrdos"),
                     QStringLiteral("NomPatient = ? AND Datenais = ? AND NomPatient <> '*'"), cle);
    transaction.Valide();
}

} // namespace patients
