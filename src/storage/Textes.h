#pragma once

#include <QString>
#include <vector>

namespace storage {

/// A key and a text of each row of a table, in stored order. All texts stand in one block.
struct Textes
{
    struct Rangee
    {
        qint64 Cle = 0; ///< 0 for null
        quint32 Debut = 0;
        quint32 Longueur = 0; ///< of the text in the block, 0 for null
    };

    QString Bloc;
    std::vector<Rangee> Rangees;

    QStringView Texte(const Rangee& rangee) const
    {
        return QStringView(Bloc).mid(rangee.Debut, rangee.Longueur);
    }
    void Ajoute(qint64 cle, QStringView texte)
    {
        Rangees.push_back({cle, static_cast<quint32>(Bloc.size()), static_cast<quint32>(texte.size())});
        Bloc.append(texte);
    }
};

} // namespace storage
