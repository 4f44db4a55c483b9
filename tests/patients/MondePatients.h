#pragma once

#include "patients/Fiche.h"
#include "storage/Jeu.h"
#include "storage/Schema.h"
#include "support/Monde.h"

/// A world whose shared database stands.
struct MondePatients : support::Monde
{
    MondePatients()
    {
        common::CreeDossier(Etat.Chemins.CheminTravail);
        storage::CreeBase(common::Joint(Etat.Chemins.CheminTravail, QStringLiteral("Medoc.mdb")),
                          storage::GenreBase::Medoc);
    }

    storage::Base& Medoc() { return Etat.Bases.Medoc(Etat.Chemins.CheminTravail); }

    /// Stores a patient born on 20/03/1953 unless told otherwise and gives his key.
    int Enregistre(const QString& titre, const QString& nom,
                   const QString& date = QStringLiteral("20/03/1953"),
                   const QString& poids = QStringLiteral("0"), const QString& precautions = {})
    {
        patients::Fiche fiche;
        fiche.Titre = titre;
        fiche.NomPatient = nom;
        fiche.Datenais = date;
        fiche.Poids = poids;
        fiche.Precautions = precautions;
        return patients::AjouteFiche(Medoc(), fiche);
    }

    /// One row of a table, the columns given in their order.
    void Ajoute(const QString& table, const QVariantList& champs)
    {
        storage::Jeu jeu = Medoc().Table(table);
        jeu.AddNew();
        for (int position = 0; position < champs.size(); ++position) {
            jeu.Ecris(position, champs[position]);
        }
        jeu.Update();
    }

    /// The rows of a table in stored order, its first `colonnes` columns.
    QList<QVariantList> Rangees(const QString& table = QStringLiteral("Patients"), int colonnes = 11)
    {
        QList<QVariantList> rangees;
        for (storage::Jeu jeu = Medoc().Table(table); !jeu.Fin(); jeu.MoveNext()) {
            QVariantList rangee;
            for (int position = 0; position < colonnes; ++position) {
                rangee << jeu.Champ(position);
            }
            rangees << rangee;
        }
        return rangees;
    }
};
