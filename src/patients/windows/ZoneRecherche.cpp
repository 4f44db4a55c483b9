#include "patients/windows/ZoneRecherche.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>

namespace patients {

namespace {

bool ParcourtListe(int touche)
{
    return touche == Qt::Key_Up || touche == Qt::Key_Down || touche == Qt::Key_PageUp ||
           touche == Qt::Key_PageDown;
}

} // namespace

ZoneRecherche::ZoneRecherche(QAbstractItemView& liste, QWidget* parent)
    : ChampSelectionne(parent), liste_(liste)
{}

void ZoneRecherche::keyPressEvent(QKeyEvent* evenement)
{
    if (ParcourtListe(evenement->key())) {
        QCoreApplication::sendEvent(&liste_, evenement);
        return;
    }
    ChampSelectionne::keyPressEvent(evenement);
}

} // namespace patients
