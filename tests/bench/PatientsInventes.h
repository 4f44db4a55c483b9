#pragma once

#include "storage/Base.h"

namespace bench {

/// Adds invented patients to a "Medoc.mdb", in one transaction.
inline void AjoutePatients(const QString& chemin, int nombre)
{
    storage::Base base(chemin, storage::GenreBase::Medoc);
    storage::Transaction transaction(base);
    for (int i = 0; i < nombre; ++i) {
        const QString nom = QStringLiteral("NOM%1  Prénom%2").arg((i * 7919) % nombre).arg(i);
        base.Execute(
            QStringLiteral("insert into Patients (Titre, NomPatient, Datenais, Poids, Precautions) "
                           "values (?, ?, ?, ?, ?)"),
            {QStringLiteral("Madame"), nom, QStringLiteral("20/03/1953"), QStringLiteral("0"), QString()});
    }
    transaction.Valide();
}

} // namespace bench
