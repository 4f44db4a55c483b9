#include "application/windows/Style.h"

#include <QAction>
#include <QFrame>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace application::style {

namespace {

constexpr int kIconeAccueil = 36;
constexpr int kIconeEnseigne = 40;
constexpr int kEntreIconeEtMot = 5; // added to the style's own gap

QString SansLettre(QString texte)
{
    return texte.remove(QLatin1Char('&'));
}

QPushButton* BoutonDuGenre(const char* genre, const QString& nomObjet, const QString& texte,
                           const QIcon& icone, QWidget* parent)
{
    auto* bouton = new QPushButton(icone, texte, parent);
    bouton->setObjectName(nomObjet);
    bouton->setProperty("genre", QLatin1String(genre));
    bouton->setIconSize({kTailleIcone + (texte.isEmpty() ? 0 : kEntreIconeEtMot), kTailleIcone});
    bouton->setAutoDefault(false);
    bouton->setAccessibleName(SansLettre(texte));
    bouton->setCursor(Qt::PointingHandCursor);
    return bouton;
}

QIcon IconeOuRien(const QString& nom, Ton ton)
{
    return nom.isEmpty() ? QIcon() : Icone(nom, ton);
}

QLabel* Etiquette(const char* genre, const QString& nomObjet, const QString& texte, QWidget* parent,
                  QWidget* compagnon)
{
    auto* etiquette = new QLabel(texte, parent);
    etiquette->setObjectName(nomObjet);
    etiquette->setProperty("genre", QLatin1String(genre));
    etiquette->setTextFormat(Qt::PlainText);
    if (compagnon) {
        etiquette->setBuddy(compagnon);
        compagnon->setAccessibleName(SansLettre(texte));
    }
    return etiquette;
}

} // namespace

QPushButton* Bouton(const QString& nomObjet, const QString& texte, const QString& icone, QWidget* parent)
{
    return BoutonDuGenre("simple", nomObjet, texte, IconeOuRien(icone, Ton::Encre), parent);
}

QPushButton* BoutonPrincipal(const QString& nomObjet, const QString& texte, const QString& icone,
                             QWidget* parent)
{
    auto* bouton = BoutonDuGenre("principal", nomObjet, texte, IconeOuRien(icone, Ton::Blanc), parent);
    bouton->setAutoDefault(true);
    bouton->setDefault(true);
    return bouton;
}

QPushButton* BoutonPrincipalRouge(const QString& nomObjet, const QString& texte, const QString& icone,
                                  QWidget* parent)
{
    QPushButton* bouton = BoutonPrincipal(nomObjet, texte, {}, parent);
    bouton->setIcon(IconeOuRien(icone, Ton::RougeSombre));
    bouton->setProperty("teinte", QStringLiteral("rouge"));
    return bouton;
}

QPushButton* BoutonDestructeur(const QString& nomObjet, const QString& texte, const QString& icone,
                               QWidget* parent)
{
    return BoutonDuGenre("destructeur", nomObjet, texte, IconeOuRien(icone, Ton::Rouge), parent);
}

QPushButton* BoutonAccueil(const QString& nomObjet, const QString& nomLegende, const QString& texte,
                           const QString& icone, QWidget* parent)
{
    auto* tuile = BoutonDuGenre("accueil", nomObjet, {}, Icone(icone), parent);
    tuile->setIconSize({kIconeAccueil, kIconeAccueil});
    auto* legende = BoutonDuGenre("accueilLegende", nomLegende, texte, {}, tuile);
    legende->setShortcut({});
    legende->setFocusPolicy(Qt::NoFocus);
    legende->setAttribute(Qt::WA_TransparentForMouseEvents);
    tuile->setShortcut(QKeySequence::mnemonic(texte));
    tuile->setAccessibleName(SansLettre(texte));
    auto* disposition = new QHBoxLayout(tuile);
    disposition->setContentsMargins(kIconeAccueil + 2 * 20, 0, kMarge, 0);
    disposition->addWidget(legende);
    return tuile;
}

void AligneAGauche(QPushButton* bouton)
{
    bouton->setProperty("alignement", QStringLiteral("gauche"));
}

void Serre(QPushButton* bouton)
{
    bouton->setProperty("alignement", QStringLiteral("serre"));
}

void SouligneSousLaSouris(QPushButton* bouton)
{
    bouton->setProperty("survol", QStringLiteral("souligne"));
}

QPushButton* Lien(const QString& nomObjet, const QString& texte, QWidget* parent)
{
    auto* lien = BoutonDuGenre("lien", nomObjet, texte, QIcon(), parent);
    lien->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    return lien;
}

QToolButton* BoutonIcone(const QString& nomObjet, const QString& texte, const QString& icone, QWidget* parent)
{
    auto* bouton = new QToolButton(parent);
    bouton->setObjectName(nomObjet);
    bouton->setText(texte);
    bouton->setIcon(Icone(icone));
    bouton->setIconSize({kTailleIcone, kTailleIcone});
    bouton->setFixedSize(kHauteurBouton, kHauteurBouton);
    bouton->setFocusPolicy(Qt::StrongFocus);
    Nomme(bouton, SansLettre(texte));
    return bouton;
}

QLabel* Titre(const QString& nomObjet, const QString& texte, QWidget* parent, QWidget* compagnon)
{
    return Etiquette("titre", nomObjet, texte, parent, compagnon);
}

QLabel* Legende(const QString& nomObjet, const QString& texte, QWidget* parent, QWidget* compagnon)
{
    return Etiquette("legende", nomObjet, texte, parent, compagnon);
}

QLabel* Avertissement(const QString& nomObjet, const QString& texte, QWidget* parent)
{
    return Etiquette("avertissement", nomObjet, texte, parent, nullptr);
}

QWidget* Carte(QWidget* parent)
{
    auto* carte = new QFrame(parent);
    carte->setProperty("genre", QStringLiteral("carte"));
    return carte;
}

void TeinteSansMedecin(QWidget* carte, int rang, bool sansMedecin)
{
    const QString teinte = rang == 0 ? QStringLiteral("aucun") : QStringLiteral("aucunAutre");
    carte->setProperty("medecin", sansMedecin ? teinte : QString());
    carte->style()->unpolish(carte);
    carte->style()->polish(carte);
}

void Encadre(QLabel* echantillon)
{
    echantillon->setProperty("genre", QStringLiteral("echantillon"));
    echantillon->setTextFormat(Qt::PlainText);
    echantillon->setAlignment(Qt::AlignCenter);
}

QWidget* Defilement(QWidget* contenu, QWidget* parent)
{
    auto* defilement = new QScrollArea(parent);
    defilement->setWidgetResizable(true);
    defilement->setFrameShape(QFrame::NoFrame);
    defilement->setFocusPolicy(Qt::NoFocus);
    defilement->setWidget(contenu);
    contenu->setAutoFillBackground(false);
    defilement->viewport()->setAutoFillBackground(false);
    return defilement;
}

void SerreOnglets(QTabBar* onglets, bool oui)
{
    const QVariant serre(oui ? QStringLiteral("oui") : QString());
    if (onglets->property("serre") != serre) {
        onglets->setProperty("serre", serre);
        onglets->style()->unpolish(onglets);
        onglets->style()->polish(onglets);
    }
}

void EntreeParDefaut(QMenu* menu, QAction* entree)
{
    QFont gras = entree->font();
    gras.setBold(true);
    entree->setFont(gras);
    menu->setDefaultAction(entree);
}

QWidget* Enseigne(QWidget* parent)
{
    auto* enseigne = new QWidget(parent);
    enseigne->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    auto* disposition = new QHBoxLayout(enseigne);
    disposition->setContentsMargins(0, 0, 0, 0);
    disposition->setSpacing(kEntreGroupes);
    auto* image = new QLabel(enseigne);
    image->setPixmap(QGuiApplication::windowIcon().pixmap(QSize(kIconeEnseigne, kIconeEnseigne),
                                                          parent->devicePixelRatioF()));
    disposition->addWidget(image);
    disposition->addWidget(Etiquette("enseigne", {}, QStringLiteral("Scriptelle"), enseigne, nullptr), 1);
    return enseigne;
}

QVBoxLayout* Fenetre(QWidget* fenetre)
{
    auto* disposition = new QVBoxLayout(fenetre);
    disposition->setContentsMargins(kMarge, kMarge, kMarge, kMarge);
    disposition->setSpacing(kEntreGroupes);
    return disposition;
}

void Dimensionne(QWidget* fenetre, int largeur, int hauteur)
{
    constexpr QSize kBordures(16, 48);
    const QScreen* ecran =
        fenetre->parentWidget() ? fenetre->parentWidget()->screen() : QGuiApplication::primaryScreen();
    fenetre->resize(QSize(largeur, hauteur).boundedTo(ecran->availableSize() - kBordures));
}

void OrdreTab(const QList<QWidget*>& controles)
{
    for (qsizetype i = 1; i < controles.size(); ++i) {
        QWidget::setTabOrder(controles[i - 1], controles[i]);
    }
}

void RaccourciVers(QWidget* controle, const QString& touche)
{
    QObject::connect(new QShortcut(QKeySequence(touche), controle), &QShortcut::activated, controle,
                     [controle] { controle->setFocus(Qt::ShortcutFocusReason); });
    Nomme(controle, controle->accessibleName(), touche);
}

void GardeUneLigne(QLineEdit* champ)
{
    QObject::connect(champ, &QLineEdit::textEdited, champ, [champ](QString texte) {
        static const QRegularExpression kALaFin(QStringLiteral("[\\r\\n\u2028\u2029]+$"));
        static const QRegularExpression kSauts(QStringLiteral("[\\r\\n\u2028\u2029]+"));
        if (texte.contains(kSauts)) {
            champ->setText(texte.remove(kALaFin).replace(kSauts, QStringLiteral(" ")));
        }
    });
}

void Nomme(QWidget* controle, const QString& nom, const QString& touche)
{
    controle->setAccessibleName(nom);
    controle->setToolTip(touche.isEmpty() ? nom : QStringLiteral("%1 (%2)").arg(nom, touche));
}

} // namespace application::style
