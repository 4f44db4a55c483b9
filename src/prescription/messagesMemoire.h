#pragma once

#include <QString>

/// What is said about memorised prescriptions.
namespace prescription::messages {

inline QString EnregistrerModifications(const QString& titre)
{
    return QStringLiteral("Enregistrer les modifications de ") + titre + QStringLiteral(" ?");
}

inline QString TitreNomMemo()
{
    return QStringLiteral("Ordonnance mémorisée");
}

inline QString InviteNomMemo()
{
    return QStringLiteral("Donnez un nom à cette ordonnance mémorisée :");
}

inline QString NonMemorisee()
{
    return QStringLiteral("L'ordonnance ne sera pas mémorisée.");
}

inline QString Specifique(const QString& patient)
{
    return QStringLiteral("Voulez-vous que cette ordonnance soit spécifique à ") + patient +
           QStringLiteral(" ?");
}

inline QString SupprimerDesMemorisees(const QString& titre)
{
    return QStringLiteral("Supprimer ") + titre + QStringLiteral(" des ordonnances mémorisées ?");
}

inline QString EffacerActuelle()
{
    return QStringLiteral("Voulez-vous effacer l'ordonnance actuelle ?");
}

inline QString SelectionnezMemo()
{
    return QStringLiteral("Sélectionnez une ordonnance .");
}

inline QString SupprimerMemo(const QString& titre)
{
    return QStringLiteral("Supprimer  ") + titre + QStringLiteral("  ?");
}

inline QString PlusDeMemo()
{
    return QStringLiteral("Plus d'ordonnance enregistrée !");
}

inline QString AideSuppression()
{
    return QStringLiteral("Pour supprimer une ordonnance enregistrée, il faut la sélectionner dans la "
                          "liste, et taper sur la touche 'Suppr' du clavier.");
}

} // namespace prescription::messages
