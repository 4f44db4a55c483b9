#include "prescription/windows/BarreCommandes.h"

#include "application/windows/Style.h"
#include "application/windows/UnSeulClic.h"

#include <QBoxLayout>
#include <QPushButton>

namespace prescription {

namespace style = application::style;

BarreCommandes::BarreCommandes(const QString& nomObjet, Qt::Orientation sens,
                               const QList<Commande>& commandes, QWidget* parent)
    : QWidget(parent), sens_(sens)
{
    setObjectName(nomObjet);
    QWidget* carte = style::Carte(this);
    auto* cadre = new QVBoxLayout(this);
    cadre->setContentsMargins({});
    cadre->addWidget(carte);
    auto* rangee =
        new QBoxLayout(sens == Qt::Vertical ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, carte);
    rangee->setSpacing(style::kDansGroupe);
    rangee->setContentsMargins(style::kDansGroupe, style::kDansGroupe, style::kDansGroupe,
                               style::kDansGroupe);
    Ajoute(rangee, commandes, carte);
}

void BarreCommandes::Ajoute(QBoxLayout* rangee, const QList<Commande>& commandes, QWidget* carte)
{
    Groupe groupe = Groupe::Document;
    for (const Commande& commande : commandes) {
        if (commande.Groupe != groupe) {
            groupe = commande.Groupe;
            rangee->addSpacing(style::kEntreGroupes);
            if (groupe == Groupe::Programme) {
                rangee->addStretch();
            }
        }
        rangee->addWidget(CreeBouton(commande, carte));
    }
}

QPushButton* BarreCommandes::CreeBouton(const Commande& commande, QWidget* carte)
{
    const QString texte = sens_ == Qt::Vertical ? commande.Texte : commande.TexteCourt;
    QPushButton* bouton = commande.Groupe == Groupe::Papier
                              ? style::BoutonPrincipal(commande.Nom, texte, commande.Icone, carte)
                              : style::Bouton(commande.Nom, texte, commande.Icone, carte);
    if (sens_ == Qt::Vertical) {
        style::AligneAGauche(bouton);
    } else {
        style::Serre(bouton);
    }
    style::Nomme(bouton, commande.Bulle, commande.Touche.toString(QKeySequence::NativeText));
    connect(bouton, &QPushButton::clicked, this, [action = commande.Action] { action(); });
    bouton->installEventFilter(new application::UnSeulClic(bouton)); // a sheet would be printed twice
    return bouton;
}

QPushButton* BarreCommandes::BoutonDe(const QString& nom) const
{
    return findChild<QPushButton*>(nom);
}

} // namespace prescription
