#pragma once

#include "AncienneBase.h"
#include "Temoin.h"
#include "support/BaseDeTest.h"
#include "upgrade/RecopieMedoc.h"

#include <QTemporaryDir>
#include <optional>

/// An old database and the template that its rows go into.
struct Atelier
{
    QTemporaryDir Dossier;
    QString Ancien = Dossier.filePath(U("Medoc.mdb"));
    QString Racine = Dossier.filePath(U("Ordo.mdb"));
    QString Copie = Dossier.filePath(U("Copie.mdb"));
    bool Repare = false;

    void Recopie(bool avecRacine = false)
    {
        storage::CreeBase(Copie, storage::GenreBase::Medoc, storage::ContenuInitial::Aucun);
        const upgrade::Source medoc(Ancien, storage::GenreBase::Medoc);
        std::optional<upgrade::Source> racine;
        if (avecRacine) {
            racine.emplace(Racine, storage::GenreBase::Ordo);
        }
        upgrade::Suivi suivi;
        Repare = upgrade::RecopieMedoc(Copie, medoc, racine ? &*racine : nullptr, suivi);
    }
    QStringList Lignes(const char* table)
    {
        storage::Base base(Copie, storage::GenreBase::Medoc);
        return support::Lignes(base, U(table));
    }
    temoin::Lignes Valeurs(const char* table, int colonnes)
    {
        storage::Base base(Copie, storage::GenreBase::Medoc);
        return temoin::Lit(base, U(table), colonnes);
    }
};
