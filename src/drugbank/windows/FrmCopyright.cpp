#include "drugbank/windows/FrmCopyright.h"

#include "application/windows/Style.h"
#include "drugbank/Banque.h"
#include "drugbank/messages.h"

#include <QLabel>
#include <QVBoxLayout>

namespace drugbank {

namespace style = application::style;

namespace {

constexpr int kLargeur = 420;
constexpr int kHauteur = 190;

QLabel* Ligne(const QString& nomObjet, const QString& texte, QWidget* parent)
{
    QLabel* ligne = style::Legende(nomObjet, texte, parent);
    ligne->setTextFormat(Qt::PlainText);
    ligne->setWordWrap(true);
    return ligne;
}

} // namespace

FrmCopyright::FrmCopyright(application::Contexte& contexte, application::Fenetres&)
{
    setObjectName(QStringLiteral("FrmCopyright"));
    setWindowTitle(QStringLiteral("Copyright"));
    const Banque& banque = contexte.Banque;
    const bool publique = EstPublique(banque);
    QWidget* carte = style::Carte(this);
    auto* textes = style::DansCarte(carte);
    textes->addWidget(style::Titre(QStringLiteral("Label1"),
                                   publique ? messages::NomPublique() : messages::NomVidal(), carte));
    if (publique) {
        textes->addWidget(Ligne(QStringLiteral("LblSource"), messages::SourcePublique(), carte));
    }
    textes->addWidget(Ligne(QStringLiteral("LblVersion"),
                            publique ? messages::VersionPublique(banque.VersionBanque)
                                     : messages::VersionVidal(banque.VersionBanque),
                            carte));
    auto* quitter = style::BoutonPrincipal(QStringLiteral("CmdQuitter"), QStringLiteral("&Quitter"),
                                           QStringLiteral("x-lg"), this);
    connect(quitter, &QPushButton::clicked, this, &QDialog::accept);
    QVBoxLayout* disposition = style::Fenetre(this);
    disposition->addWidget(carte, 1);
    disposition->addWidget(quitter, 0, Qt::AlignRight);
    style::Dimensionne(this, kLargeur, kHauteur);
    quitter->setFocus();
}

} // namespace drugbank
