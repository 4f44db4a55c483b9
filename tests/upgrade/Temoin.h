#pragma once

#include "storage/Base.h"
#include "storage/Jeu.h"

#include <QList>
#include <QRegularExpression>
#include <QVariantList>
#include <cmath>
#include <optional>

/// The rule of the copy, row by row and column by column, as plainly as it can be said: what the upgrade with
/// its whole-table statements has to give.
namespace temoin {

using Lignes = QList<QVariantList>;

inline QVariant OuSinon(const QVariant& valeur, const QVariant& sinon)
{
    return valeur.isValid() ? valeur : sinon;
}

inline QVariant NonVide(const QVariant& valeur)
{
    return !valeur.isValid() || valeur.toString().isEmpty() ? QVariant(QStringLiteral("*")) : valeur;
}

/// Wholly a number with a decimal comma.
inline std::optional<double> Nombre(const QVariant& valeur)
{
    if (valeur.typeId() != QMetaType::QString) {
        return valeur.isValid() ? std::optional(valeur.toDouble()) : std::nullopt;
    }
    const QString texte = valeur.toString().trimmed();
    static const QRegularExpression forme(QStringLiteral("^[+-]?(\\d+,?\\d*|,\\d+)$"));
    return forme.match(texte).hasMatch() ? std::optional(QString(texte).replace(u',', u'.').toDouble())
                                         : std::nullopt;
}

inline QVariant Entier(const QVariant& valeur)
{
    const auto nombre = Nombre(valeur);
    return nombre ? QVariant(qint64(std::nearbyint(*nombre))) : QVariant();
}

inline QString Espace(const QVariant& nom)
{
    return nom.toString()
        .replace(QStringLiteral("  "), QStringLiteral(" "))
        .replace(u' ', QStringLiteral("  "));
}

/// All the rows of a table, each with that many columns; none when the table is missing.
inline Lignes Lit(storage::Base& base, const QString& table, int colonnes)
{
    Lignes lignes;
    const storage::Table* connue = base.ChercheTable(table);
    if (!connue) {
        return lignes;
    }
    for (storage::Jeu jeu = base.Table(table); !jeu.Fin(); jeu.MoveNext()) {
        QVariantList ligne;
        for (int i = 0; i < colonnes; ++i) {
            ligne.append(i < connue->Colonnes.size() ? jeu.Champ(i) : QVariant());
        }
        lignes.append(ligne);
    }
    return lignes;
}

inline Lignes ListeOrdos(storage::Base& base)
{
    Lignes lignes = Lit(base, QStringLiteral("ListeOrdos"), 4);
    for (QVariantList& ligne : lignes) {
        ligne[1] = NonVide(ligne[1]);
        ligne[2] = OuSinon(Entier(ligne[2]), 0);
        ligne[3] = OuSinon(ligne[3], QStringLiteral("0"));
    }
    for (QVariantList& ligne : lignes) {
        ligne[1] = Espace(ligne[1]);
    }
    return lignes;
}

inline Lignes OrdoEnr(storage::Base& base)
{
    Lignes lignes = Lit(base, QStringLiteral("OrdoEnr"), 8);
    for (QVariantList& ligne : lignes) {
        ligne[3] = OuSinon(Entier(ligne[3]), 1);
        ligne[4] = NonVide(ligne[4]);
        ligne[5] = OuSinon(ligne[5], QStringLiteral("0"));
        const QVariant id = OuSinon(Entier(ligne[6]), 0);
        const bool tient = id.toLongLong() >= INT32_MIN && id.toLongLong() <= INT32_MAX;
        ligne[6] = tient ? id : QVariant();
        ligne[7] = Entier(ligne[7]);
        if (!ligne[7].isValid()) {
            ligne[6] = 0;
        }
    }
    for (QVariantList& ligne : lignes) {
        ligne[4] = Espace(ligne[4]);
    }
    return lignes;
}

/// The birth dates, patient by patient over all the rows.
inline bool RepareDates(const Lignes& patients, Lignes& liste, Lignes& lignes)
{
    const bool due = std::ranges::any_of(liste, [](const QVariantList& ligne) {
        return ligne[1].toString() != QLatin1String("*") && ligne[3].toString() == QLatin1String("0");
    });
    for (const QVariantList& patient : patients) {
        for (QVariantList& ligne : liste) {
            if (due && ligne[1].toString().contains(patient[2].toString())) {
                ligne[3] = patient[3].toString();
            }
        }
        for (QVariantList& ligne : lignes) {
            if (due && ligne[4].toString().contains(patient[2].toString())) {
                ligne[5] = patient[3].toString();
            }
        }
    }
    return due;
}

} // namespace temoin
