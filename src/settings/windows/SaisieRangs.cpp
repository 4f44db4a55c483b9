#include "settings/windows/SaisieRangs.h"

#include "application/windows/Style.h"
#include "page/Surface.h"
#include "settings/Reglages.h"
#include "settings/Retrait.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QVBoxLayout>

#include <algorithm>

namespace settings {

namespace style = application::style;

namespace {

constexpr float kPlusPetite = 4; // points: what a field can show
constexpr float kPlusGrande = 40;
constexpr int kLignesDuPied = 3;
constexpr int kEntreRangs = 2;
constexpr int kPlusGrandRetrait = 120; // pixels

QFont PoliceDuChamp(const page::Police& police)
{
    QFont fonte(police.Nom);
    fonte.setPointSizeF(std::clamp(police.Taille, kPlusPetite, kPlusGrande));
    fonte.setBold(police.Gras);
    fonte.setItalic(police.Italique);
    fonte.setUnderline(police.Souligne);
    return fonte;
}

QString NomDeLaPolice(const page::Police& police)
{
    QString nom = QStringLiteral("%1 %2").arg(police.Nom).arg(static_cast<double>(police.Taille));
    nom += police.Gras ? QStringLiteral(", gras") : QString();
    nom += police.Italique ? QStringLiteral(", italique") : QString();
    return nom + (police.Souligne ? QStringLiteral(", souligné") : QString());
}

/// The text as it is stored. A hard blank stays one.
QString TexteStocke(const QWidget* champ)
{
    if (const auto* ligne = qobject_cast<const QLineEdit*>(champ)) {
        return ligne->text();
    }
    QString texte = static_cast<const QPlainTextEdit*>(champ)->document()->toRawText();
    return texte.replace(QChar::ParagraphSeparator, QLatin1String("\r\n"));
}

void PoseTexte(QWidget* champ, QString texte)
{
    if (auto* ligne = qobject_cast<QLineEdit*>(champ)) {
        ligne->setText(texte);
        ligne->setCursorPosition(0);
    } else {
        static_cast<QPlainTextEdit*>(champ)->setPlainText(
            texte.replace(QLatin1String("\r\n"), QLatin1String("\n")));
    }
}

PlaceDansRang PlaceDuCurseur(const QWidget* champ)
{
    if (const auto* ligne = qobject_cast<const QLineEdit*>(champ)) {
        const bool selection = ligne->hasSelectedText();
        const int place = selection ? ligne->selectionStart() : ligne->cursorPosition();
        return {ligne->text().left(place), selection};
    }
    const auto* texte = static_cast<const QPlainTextEdit*>(champ);
    const QTextCursor curseur = texte->textCursor();
    return {texte->document()->toRawText().left(curseur.selectionStart()), curseur.hasSelection()};
}

ToucheDeRang GenreDeTouche(int touche)
{
    switch (touche) {
    case Qt::Key_Space:
        return ToucheDeRang::Espace;
    case Qt::Key_Backspace:
        return ToucheDeRang::Retour;
    case Qt::Key_Delete:
        return ToucheDeRang::Suppr;
    default:
        return ToucheDeRang::Autre;
    }
}

bool EstClicGauche(const QEvent* evenement)
{
    return evenement->type() == QEvent::MouseButtonRelease &&
           static_cast<const QMouseEvent*>(evenement)->button() == Qt::LeftButton;
}

QVBoxLayout* Groupe(QWidget* carte, const QString& nom, const QString& titre, QWidget* premier)
{
    auto* groupe = new QVBoxLayout(carte);
    groupe->setSpacing(kEntreRangs);
    const QString accessible = premier->accessibleName();
    groupe->addWidget(style::Titre(nom, titre, carte, premier));
    premier->setAccessibleName(accessible);
    return groupe;
}

/// Rows that share a line of the screen, with their parts of its width.
QHBoxLayout* Ligne(const QList<std::pair<QWidget*, int>>& parts)
{
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(style::kDansGroupe);
    for (const auto& [champ, part] : parts) {
        ligne->addWidget(champ, part);
    }
    return ligne;
}

} // namespace

SaisieRangs::SaisieRangs(SaisieEntete& saisie, QWidget* parent) : QWidget(parent), saisie_(saisie)
{
    CreeChamps();
    NommeChamps();
    auto* colonnes = new QHBoxLayout;
    colonnes->setSpacing(style::kEntreGroupes);
    auto* gauche = new QVBoxLayout;
    gauche->setSpacing(style::kEntreGroupes);
    gauche->addWidget(CarteAdresse());
    gauche->addWidget(CarteBasDePage());
    gauche->addWidget(CarteSignature());
    gauche->addStretch();
    colonnes->addLayout(gauche, 6);
    colonnes->addWidget(CartePraticien(), 5);
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins({});
    page->addLayout(colonnes);
    page->addStretch();
}

void SaisieRangs::CreeChamps()
{
    for (int rang = 0; rang < storage::kLignesEntete; ++rang) {
        QWidget* champ = nullptr;
        if (rang == page::kBasDePage) {
            auto* texte = new QPlainTextEdit(this);
            texte->setTabChangesFocus(true);
            texte->viewport()->installEventFilter(this);
            connect(texte, &QPlainTextEdit::textChanged, this, &SaisieRangs::Change);
            champ = texte;
        } else {
            auto* ligne = new QLineEdit(this);
            connect(ligne, &QLineEdit::textChanged, this, &SaisieRangs::Change);
            champ = ligne;
        }
        champ->setObjectName(QStringLiteral("Txt(%1)").arg(rang));
        champ->installEventFilter(this);
        champs_.at(static_cast<size_t>(rang)) = champ;
    }
}

void SaisieRangs::NommeChamps()
{
    const auto nomme = [&](int rang, const QString& nom) { Champ(rang)->setAccessibleName(nom); };
    for (int rang = 0; rang < storage::kLignesEntete; ++rang) {
        nomme(rang, rang < 10 ? QStringLiteral("Adresse, ligne %1").arg(rang + 1)
                              : QStringLiteral("Praticien, ligne %1").arg(rang - 9));
    }
    nomme(5, QStringLiteral("Intitulé du téléphone"));
    nomme(6, QStringLiteral("Numéro de téléphone"));
    nomme(7, QStringLiteral("Intitulé du fax"));
    nomme(8, QStringLiteral("Numéro de fax"));
    nomme(page::kBasDePage, QStringLiteral("Bas de page"));
    nomme(kRangSignature, QStringLiteral("Nom de la signature électronique"));
}

QWidget* SaisieRangs::CarteAdresse()
{
    QWidget* carte = style::Carte(this);
    QVBoxLayout* groupe = Groupe(carte, QStringLiteral("LblAdresse"), QStringLiteral("Adre&sse"), Champ(0));
    groupe->addWidget(Champ(0));
    groupe->addWidget(Champ(1));
    groupe->addLayout(Ligne({{Champ(2), 2}, {Champ(3), 1}}));
    groupe->addWidget(Champ(4));
    groupe->addLayout(Ligne({{Champ(5), 1}, {Champ(6), 2}, {Champ(7), 1}, {Champ(8), 2}}));
    groupe->addWidget(Champ(9));
    return carte;
}

QWidget* SaisieRangs::CartePraticien()
{
    QWidget* carte = style::Carte(this);
    QVBoxLayout* groupe =
        Groupe(carte, QStringLiteral("LblPraticien"), QStringLiteral("Praticie&n"), Champ(10));
    for (int rang = 10; rang < page::kBasDePage; ++rang) {
        groupe->addWidget(Champ(rang));
    }
    groupe->addStretch();
    return carte;
}

QWidget* SaisieRangs::CarteBasDePage()
{
    QWidget* carte = style::Carte(this);
    QWidget* champ = Champ(page::kBasDePage);
    QVBoxLayout* groupe =
        Groupe(carte, QStringLiteral("LblBasDePage"), QStringLiteral("Bas de pa&ge"), champ);
    groupe->addWidget(champ);
    return carte;
}

QWidget* SaisieRangs::CarteSignature()
{
    QWidget* carte = style::Carte(this);
    QWidget* champ = Champ(kRangSignature);
    QVBoxLayout* groupe = Groupe(carte, QStringLiteral("LblSignature"), QStringLiteral("Signat&ure"), champ);
    groupe->addWidget(champ);
    return carte;
}

void SaisieRangs::Montre(const RangsEntete& rangs)
{
    for (int rang = 0; rang < storage::kLignesEntete; ++rang) {
        const auto place = static_cast<size_t>(rang);
        saisie_.EspacesLigne.at(place) = rangs.at(place).EspacesLigne;
        PoseTexte(Champ(rang), rangs.at(place).Texte);
        PosePolice(rang, rangs.at(place).Police);
    }
}

RangsEntete SaisieRangs::Lit() const
{
    RangsEntete rangs;
    for (size_t rang = 0; rang < rangs.size(); ++rang) {
        rangs.at(rang) = {TexteStocke(champs_.at(rang)), polices_.at(rang), saisie_.EspacesLigne.at(rang)};
    }
    return rangs;
}

const page::Police& SaisieRangs::Police(int rang) const
{
    return polices_.at(static_cast<size_t>(rang));
}

QString SaisieRangs::NomPolice(int rang) const
{
    return NomDeLaPolice(Police(rang));
}

QWidget* SaisieRangs::Champ(int rang) const
{
    return champs_.at(static_cast<size_t>(rang));
}

void SaisieRangs::PosePolice(int rang, const page::Police& police)
{
    polices_.at(static_cast<size_t>(rang)) = police;
    QWidget* champ = Champ(rang);
    champ->setFont(PoliceDuChamp(police));
    if (rang == page::kBasDePage) {
        champ->setFixedHeight(kLignesDuPied * champ->fontMetrics().lineSpacing() + style::kMarge);
    }
    MontreRetrait(rang);
    Q_EMIT Change();
}

void SaisieRangs::MontreRetrait(int rang)
{
    const int espaces = saisie_.EspacesLigne.at(static_cast<size_t>(rang));
    QWidget* champ = Champ(rang);
    if (auto* ligne = qobject_cast<QLineEdit*>(champ)) {
        const int pixels = qRound(espaces * page::kPixelsParMillimetre);
        ligne->setTextMargins(std::clamp(pixels, 0, kPlusGrandRetrait), 0, 0, 0);
    }
    const QString retrait = espaces > 0 ? QStringLiteral("\nDécalée de %1 mm").arg(espaces) : QString();
    champ->setToolTip(champ->accessibleName() + QLatin1Char('\n') + NomPolice(rang) + retrait);
}

int SaisieRangs::RangDe(const QObject* objet) const
{
    const auto place = std::ranges::find_if(champs_, [&](const QWidget* champ) {
        return champ == objet ||
               champ == objet->parent(); // the second for what shows a text of several lines
    });
    return place == champs_.end() ? -1 : static_cast<int>(place - champs_.begin());
}

void SaisieRangs::SuitCurseur(int rang)
{
    saisie_.TexteAvantCurseur = PlaceDuCurseur(Champ(rang)).TexteAvant.trimmed();
}

bool SaisieRangs::RecoitTouche(int rang, int touche)
{
    qint16& espaces = saisie_.EspacesLigne.at(static_cast<size_t>(rang));
    PlaceDansRang place = PlaceDuCurseur(Champ(rang));
    place.EspacesLigne = espaces;
    const EffetDeTouche effet = FrappeDansRang(GenreDeTouche(touche), place);
    if (effet.EspacesLigne != espaces) {
        espaces = effet.EspacesLigne;
        MontreRetrait(rang);
        Q_EMIT Change();
    }
    const bool passe = (touche == Qt::Key_Return || touche == Qt::Key_Enter) && rang != page::kBasDePage;
    if (passe) {
        focusNextChild();
    }
    return effet.Retenue || passe;
}

bool SaisieRangs::eventFilter(QObject* objet, QEvent* evenement)
{
    const int rang = RangDe(objet);
    if (rang < 0) {
        return QWidget::eventFilter(objet, evenement);
    }
    if (evenement->type() == QEvent::FocusIn) {
        saisie_.LigneCourante = static_cast<qint16>(rang);
        Q_EMIT RangCourant(rang);
    } else if (EstClicGauche(evenement)) {
        SuitCurseur(rang);
    } else if (evenement->type() == QEvent::KeyPress) {
        const auto* touche = static_cast<QKeyEvent*>(evenement);
        const bool seule =
            !(touche->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
        return seule && RecoitTouche(rang, touche->key());
    }
    return QWidget::eventFilter(objet, evenement);
}

} // namespace settings
