#pragma once

#include <QAction>
#include <QPointer>
#include <QWidget>

class QAbstractItemView;

namespace scenario {

/// What a name of the script stands for.
struct Controle
{
    QWidget* Fenetre = nullptr;
    QWidget* Widget = nullptr; ///< the control, or the window itself; null for a menu entry
    QAction* Entree = nullptr; ///< a menu entry
};

/// The top-level window of that object name, shown or not; null when it is not loaded.
QWidget* TrouveFenetre(const QString& nom);

/// The control of that name. Throws `Echec` when it does not exist or when several could be meant.
Controle Trouve(const QString& nom);

/// The modal window or box that keeps this window from the mouse and the keys; null when it is free.
QWidget* FenetreBloquante(const QWidget* fenetre);

/// Why a doctor's mouse could not reach the control now, empty when it could. Throws as `Trouve`.
QString Obstacle(const QString& nom);

/// That the control is greyed, empty when it is not. Throws as `Trouve`.
QString ObstacleGris(const QString& nom);

/// The list, table or tree of the control; null when it is none.
QAbstractItemView* Vue(QWidget* widget);

} // namespace scenario
