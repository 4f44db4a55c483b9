#pragma once

#include "storage/SuiviConversion.h"

#include <QHash>
#include <QStringList>
#include <functional>

namespace support {

/// Keeps what a conversion tells.
struct SuiviDeTest : storage::SuiviConversion
{
    QStringList Commences;
    QHash<QString, qint64> Lues; ///< rows of each table, as last told
    int Attentes = 0;
    int Termines = 0;
    bool Abandon = false;
    std::function<void()> SurAvance = [] {};

    void Commence(const QString& chemin) override { Commences.append(chemin); }
    void Attend() override { ++Attentes; }
    void Avance(const QString& table, qint64 lignes, qint64) override
    {
        Lues[table] = lignes;
        SurAvance();
    }
    void Termine() override { ++Termines; }
    bool Abandonne() const override { return Abandon; }
};

} // namespace support
