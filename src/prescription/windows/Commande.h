#pragma once

#include <QKeySequence>
#include <QString>
#include <functional>

namespace prescription {

/// Where a command stands in the tool bars.
enum class Groupe { Document, Papier, Memoire, Programme };

/// A command of the desk, as both tool bars show it.
struct Commande
{
    QString Nom;   ///< object name of its button
    QString Texte; ///< with its Alt letter
    QString TexteCourt;
    QString Bulle;
    QString Icone;
    prescription::Groupe Groupe = Groupe::Document;
    std::function<void()> Action;
    QKeySequence Touche = {};
};

} // namespace prescription
