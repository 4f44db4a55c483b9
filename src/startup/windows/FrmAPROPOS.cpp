#include "startup/windows/FrmAPROPOS.h"

#include "application/windows/Style.h"
#include "startup/Demarrage.h"
#include "startup/Documents.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace startup {

namespace style = application::style;

FrmAPROPOS::FrmAPROPOS(application::Contexte& contexte, application::Fenetres&) : contexte_(contexte)
{
    setObjectName(QStringLiteral("FrmAPROPOS"));
    setWindowTitle(QStringLiteral("A propos de Scriptelle"));
    auto* carte = style::Carte(this);
    auto* textes = new QVBoxLayout(carte);
    textes->addWidget(style::Enseigne(carte));
    textes->addWidget(
        style::Legende(QStringLiteral("Lblversion"), QStringLiteral("[Version %1]").arg(Version()), carte));
    textes->addSpacing(style::kEntreGroupes);
    textes->addWidget(new QLabel(QStringLiteral("Rédaction des ordonnances du cabinet médical."), carte));
    textes->addSpacing(style::kEntreGroupes);
    textes->addWidget(
        Lien(QStringLiteral("Label1"), QStringLiteral("Ouvrir le document d'&aide"), OuvreNouvelleAide));
    textes->addWidget(
        Lien(QStringLiteral("Label2"), QStringLiteral("&Ecrire un message sur Scriptelle"), EcritUnMessage));
    auto* ferme = style::BoutonPrincipal(QStringLiteral("Bouton_VL_XP1"), QStringLiteral("&Fermer"),
                                         QStringLiteral("x-lg"), this);
    ferme->setToolTip(QStringLiteral("Fermer cette fenêtre (Échap)"));
    connect(ferme, &QPushButton::clicked, this, &QDialog::accept);
    auto* disposition = style::Fenetre(this);
    disposition->addWidget(carte);
    disposition->addWidget(ferme, 0, Qt::AlignRight);
    ferme->setFocus();
}

QPushButton* FrmAPROPOS::Lien(const QString& nomObjet, const QString& texte,
                              void (*ouvre)(application::Contexte&))
{
    auto* lien = style::Lien(nomObjet, texte, this);
    connect(lien, &QPushButton::clicked, this, [this, ouvre] { ouvre(contexte_); });
    return lien;
}

} // namespace startup
