#pragma once

#include "prescription/windows/Commande.h"

#include <QList>
#include <QWidget>

class QBoxLayout;
class QPushButton;

namespace prescription {

/// One of the two tool bars of `FrmOrdo`: `PctMenu1` stands at the left with whole captions, `PctMenu2`
/// lies above the sheet with short ones. Their buttons bear the same names; one bar is visible.
class BarreCommandes : public QWidget
{
    Q_OBJECT

public:
    BarreCommandes(const QString& nomObjet, Qt::Orientation sens, const QList<Commande>& commandes,
                   QWidget* parent);

    QPushButton* BoutonDe(const QString& nom) const;

private:
    QPushButton* CreeBouton(const Commande& commande, QWidget* carte);
    void Ajoute(QBoxLayout* rangee, const QList<Commande>& commandes, QWidget* carte);

    Qt::Orientation sens_;
};

} // namespace prescription
