#pragma once

#include <QStringList>
#include <optional>

namespace scenario {

/// The runner's command line.
struct Commande
{
    QStringList Fichiers;
    QString Sortie;   ///< where PDF files, screenshots and worlds are kept; empty: nothing is kept
    QString Monde;    ///< where the world of a single file stands, kept; empty: among the output or temporary
    int Limite = 60;  ///< seconds for one file
    int Ensemble = 1; ///< files played at a time
    int Attente = 5;  ///< seconds until what does not appear is a failure
    bool Un = false;  ///< this process plays the one file itself, in the world `Monde`
};

/// Nothing when the arguments are wrong; `faute` says why.
std::optional<Commande> LitCommande(const QStringList& arguments, QString& faute);

} // namespace scenario
