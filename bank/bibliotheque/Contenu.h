#pragma once

#include "bank/Recherche.h"
#include "bank/ThesaurusRapport.h"

#include <QDate>
#include <QSet>
#include <atomic>

namespace banque::bibliotheque {

/// Why a bank file cannot be used.
struct Refus
{
    int Statut = 0;
};

/// What a session keeps of a bank in memory: read once, then shared by every thread.
struct Contenu
{
    /// Reads an open bank after a check of its pages. Throws `Refus`, also when `arret` was set meanwhile,
    /// and `common::Erreur`.
    Contenu(const QSqlDatabase& base, const std::atomic<bool>& arret);

    QString Information(const QString& cle) const { return informations_.value(cle); }

    banque::Recherche Recherche;
    banque::Interactions Interactions;

private:
    QHash<QString, QString> informations_;
};

/// Throws `Refus` when the file is no bank, or one of another layout.
void ExigeUneBanque(const QSqlDatabase& base);

/// The day on which the data of a bank expire. Throws `common::Erreur`.
QDate Expiration(const QSqlDatabase& base);

} // namespace banque::bibliotheque
