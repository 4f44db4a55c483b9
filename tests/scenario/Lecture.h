#pragma once

#include "scenario/Controles.h"

#include <QVariant>

namespace scenario {

// What an eye reads. Each runs in the window thread and throws `Echec` for a control that has no such thing.

/// Text or caption, without the mark of an Alt letter.
QString Texte(const Controle& controle);
/// The texts of the rows, in the order shown.
QVariantList Lignes(const Controle& controle);
/// The item data of the rows, in the order shown.
QVariantList Donnees(const Controle& controle);
int Selection(const Controle& controle);
/// 0 or 1; 2 for a box that is neither.
int EtatCoche(const Controle& controle);
bool EstVisible(const Controle& controle);
bool EstActif(const Controle& controle);
/// `{gras, couleur, fond, police, taille, italique, souligne}` of a control, or of a row.
QVariantMap Aspect(const Controle& controle, const QVariant& rangee);
/// "normale", "agrandie", "reduite", "cachee"; the last one for null.
QString EtatFenetre(const QWidget* fenetre);
/// What is drawn on a surface.
QVariantList Feuille(const Controle& controle);

} // namespace scenario
