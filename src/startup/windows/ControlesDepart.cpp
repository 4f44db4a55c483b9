#include "startup/windows/ControlesDepart.h"

#include "application/windows/Style.h"
#include "startup/Demarrage.h"
#include "startup/windows/CarteEntete.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace startup {

namespace style = application::style;

namespace {

constexpr int kLargeurColonne = 340;
constexpr int kLargeurFace = 480; ///< the letterhead's room beside the column, at least

QLayout* Bandeau(QWidget* fenetre)
{
    auto* bandeau = new QHBoxLayout;
    bandeau->addWidget(style::Enseigne(fenetre));
    bandeau->addWidget(
        style::Legende(QStringLiteral("lblversion"), QStringLiteral("Version [%1]").arg(Version()), fenetre),
        0, Qt::AlignBottom);
    bandeau->addStretch();
    return bandeau;
}

QLayout* Face(QWidget* fenetre, QLabel* conseil, QWidget* proposition)
{
    auto* face = new QVBoxLayout;
    face->addLayout(Bandeau(fenetre));
    face->addStretch();
    face->addWidget(conseil, 0, Qt::AlignCenter);
    face->addStretch();
    face->addWidget(proposition, 0, Qt::AlignLeft);
    face->addStrut(kLargeurFace);
    return face;
}

} // namespace

ControlesDepart::ControlesDepart(QWidget* fenetre)
    : Cartes{CarteDuMedecin(fenetre), CarteDesActions(fenetre)},
      Conseil(style::Legende({}, QStringLiteral("L'en-tête de vos ordonnances s'affiche ici."), fenetre)),
      LblSauvegarde(style::Avertissement(QStringLiteral("LblSauvegarde"), {}, fenetre)),
      CartePropose(new CarteEntete(fenetre))
{
    auto* colonne = new QVBoxLayout;
    colonne->setSpacing(style::kEntreGroupes);
    for (QWidget* carte : std::as_const(Cartes)) {
        carte->setFixedWidth(kLargeurColonne);
        colonne->addWidget(carte);
    }
    CmdQuitter = style::Bouton(QStringLiteral("CmdQuitter"), QStringLiteral("&Quitter Scriptelle"),
                               QStringLiteral("box-arrow-right"), fenetre);
    LblSauvegarde->setWordWrap(true);
    LblSauvegarde->setFixedWidth(kLargeurColonne);
    LblSauvegarde->hide();
    colonne->addWidget(LblSauvegarde);
    colonne->addStretch();
    colonne->addWidget(CmdQuitter);
    auto* disposition = new QHBoxLayout(fenetre);
    disposition->setContentsMargins(style::kMarge, style::kMarge, style::kMarge, style::kMarge);
    disposition->setSpacing(style::kEntreGroupes);
    disposition->addLayout(Face(fenetre, Conseil, CartePropose), 1);
    disposition->addLayout(colonne);
    style::OrdreTab({CboListeMed, CmdMedecins, CmdNO, CmdOptions, CmdOutils, CmdAide, CmdAP, CmdQuitter,
                     CartePropose->CmdUtiliseEntete, CartePropose->CmdLaisseEntete});
}

QWidget* ControlesDepart::CarteDuMedecin(QWidget* fenetre)
{
    auto* carte = style::Carte(fenetre);
    CboListeMed = new QComboBox(carte);
    CboListeMed->setObjectName(QStringLiteral("CboListeMed"));
    CboListeMed->setToolTip(QStringLiteral("Le médecin qui prescrit"));
    CboListeMed->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    PctLogo = new QLabel(carte);
    PctLogo->setObjectName(QStringLiteral("PctLogo"));
    PctLogo->setAccessibleName(QStringLiteral("Logo du médecin"));
    CmdMedecins = style::Bouton(QStringLiteral("CmdMedecins"), QStringLiteral("&Médecins ..."),
                                QStringLiteral("people"), carte);
    CmdMedecins->setToolTip(QStringLiteral("Inscrire, supprimer ou choisir un médecin (Alt+M)"));
    auto* disposition = new QVBoxLayout(carte);
    disposition->addWidget(
        style::Titre(QStringLiteral("Label1"), QStringLiteral("Médecins &utilisateurs"), carte, CboListeMed));
    disposition->addWidget(CboListeMed);
    auto* ligne = new QHBoxLayout;
    ligne->addWidget(PctLogo);
    ligne->addStretch();
    ligne->addWidget(CmdMedecins, 0, Qt::AlignBottom);
    disposition->addLayout(ligne);
    return carte;
}

QWidget* ControlesDepart::CarteDesActions(QWidget* fenetre)
{
    auto* carte = style::Carte(fenetre);
    const auto bouton = [&](const char* nom, const char* texte, const char* icone, const QString& bulle) {
        auto* nouveau =
            style::Bouton(QLatin1String(nom), QString::fromUtf8(texte), QLatin1String(icone), carte);
        nouveau->setToolTip(bulle);
        return nouveau;
    };
    CmdNO = style::BoutonAccueil(QStringLiteral("CmdNO"), QStringLiteral("CmdNO0"),
                                 QStringLiteral("&Editer Ordonnances"),
                                 QStringLiteral("file-earmark-medical"), carte);
    CmdNO->setToolTip(QStringLiteral("Ouvrir l'éditeur d'ordonnances (Alt+E)"));
    CmdOptions =
        bouton("CmdOptions", "&Options", "gear", QStringLiteral("Les préférences du médecin (Alt+O)"));
    CmdOutils =
        bouton("CmdOutils", "Ou&tils", "tools", QStringLiteral("Bases de données, logo, journal (Alt+T)"));
    CmdAide =
        bouton("CmdAide", "&Aide", "question-circle", QStringLiteral("Les documents d'aide (Alt+A, F1)"));
    CmdAP = bouton("CmdAP", "A &propos", "info-circle", QStringLiteral("La version du programme (Alt+P)"));
    auto* grille = new QGridLayout;
    grille->addWidget(CmdOptions, 0, 0);
    grille->addWidget(CmdOutils, 0, 1);
    grille->addWidget(CmdAide, 1, 0);
    grille->addWidget(CmdAP, 1, 1);
    auto* disposition = new QVBoxLayout(carte);
    disposition->setSpacing(style::kEntreGroupes);
    disposition->addWidget(CmdNO);
    disposition->addLayout(grille);
    return carte;
}

} // namespace startup
