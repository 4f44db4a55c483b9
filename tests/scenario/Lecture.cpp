#include "scenario/Lecture.h"

#include "page/windows/PorteDessin.h"
#include "scenario/Conversions.h"
#include "scenario/Echec.h"
#include "scenario/Rangees.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>

namespace scenario {

namespace {

QString SansLettreAlt(QString texte)
{
    for (qsizetype i = texte.indexOf(QLatin1Char('&')); i >= 0; i = texte.indexOf(QLatin1Char('&'), i + 1)) {
        texte.remove(i, 1);
    }
    return texte;
}

[[noreturn]] void Sans(const Controle& controle, const QString& chose)
{
    const QObject* objet = controle.Widget ? static_cast<QObject*>(controle.Widget) : controle.Entree;
    throw Echec{QStringLiteral("%1 : n'a pas de %2").arg(objet->objectName(), chose)};
}

const QTabBar* Onglets(const QWidget* widget)
{
    const auto* classeur = qobject_cast<const QTabWidget*>(widget);
    return classeur ? classeur->tabBar() : qobject_cast<const QTabBar*>(widget);
}

std::optional<QString> TexteEdite(const QWidget* widget)
{
    if (const auto* ligne = qobject_cast<const QLineEdit*>(widget)) {
        return ligne->displayText();
    }
    if (const auto* liste = qobject_cast<const QComboBox*>(widget)) {
        return liste->currentText();
    }
    if (const auto* texte = qobject_cast<const QTextEdit*>(widget)) {
        return texte->toPlainText();
    }
    if (const auto* simple = qobject_cast<const QPlainTextEdit*>(widget)) {
        return simple->toPlainText();
    }
    if (const auto* nombre = qobject_cast<const QAbstractSpinBox*>(widget)) {
        return nombre->text();
    }
    return {};
}

std::optional<QString> Legende(const QWidget* widget)
{
    if (const auto* bouton = qobject_cast<const QAbstractButton*>(widget)) {
        return SansLettreAlt(bouton->text());
    }
    if (const auto* libelle = qobject_cast<const QLabel*>(widget)) {
        return libelle->buddy() ? SansLettreAlt(libelle->text()) : libelle->text();
    }
    if (const auto* groupe = qobject_cast<const QGroupBox*>(widget)) {
        return SansLettreAlt(groupe->title());
    }
    if (const QTabBar* onglets = Onglets(widget)) {
        return SansLettreAlt(onglets->tabText(onglets->currentIndex()));
    }
    return widget->isWindow() ? std::optional(widget->windowTitle()) : std::nullopt;
}

QVariantList LignesMenu(const QMenu& menu)
{
    QVariantList lignes;
    for (const QAction* entree : menu.actions()) {
        lignes.append(entree->isSeparator() ? QStringLiteral("-") : SansLettreAlt(entree->text()));
    }
    return lignes;
}

QVariantList LignesOnglets(const QTabBar& onglets)
{
    QVariantList lignes;
    for (int i = 0; i < onglets.count(); ++i) {
        lignes.append(SansLettreAlt(onglets.tabText(i)));
    }
    return lignes;
}

QVariant Donnee(const QVariant& donnee)
{
    return donnee.isValid() ? donnee : Nul();
}

QVariantMap Decrit(const QFont& police, const QColor& couleur, const QColor& fond)
{
    const double taille = police.pointSizeF() > 0 ? police.pointSizeF() : police.pixelSize() * 0.75;
    return {{QStringLiteral("gras"), police.bold()},
            {QStringLiteral("italique"), police.italic()},
            {QStringLiteral("souligne"), police.underline()},
            {QStringLiteral("police"), police.family()},
            {QStringLiteral("taille"), taille},
            {QStringLiteral("couleur"), VersCouleurScript(couleur)},
            {QStringLiteral("fond"), VersCouleurScript(fond)}};
}

/// The ground that an eye sees: of what stands behind while it lets through.
QColor FondVu(const QWidget* widget)
{
    const QColor fond = widget->palette().color(widget->backgroundRole());
    return fond.alpha() > 0 || widget->isWindow() ? fond : FondVu(widget->parentWidget());
}

QVariantMap AspectRangee(QAbstractItemView* vue, const QModelIndex& index)
{
    const QVariant police = index.data(Qt::FontRole);
    const QVariant encre = index.data(Qt::ForegroundRole);
    const QVariant fond = index.data(Qt::BackgroundRole);
    return Decrit(police.isValid() ? police.value<QFont>() : vue->font(),
                  encre.isValid() ? encre.value<QBrush>().color() : vue->palette().color(QPalette::Text),
                  fond.isValid() ? fond.value<QBrush>().color() : vue->palette().color(QPalette::Base));
}

const page::PorteDessin* PorteDessin(QWidget* widget)
{
    if (const auto* porte = dynamic_cast<page::PorteDessin*>(widget)) {
        return porte;
    }
    for (QWidget* enfant : widget->findChildren<QWidget*>()) {
        if (const auto* porte = dynamic_cast<page::PorteDessin*>(enfant)) {
            return porte;
        }
    }
    return nullptr;
}

} // namespace

QString Texte(const Controle& controle)
{
    if (controle.Entree) {
        return SansLettreAlt(controle.Entree->text());
    }
    if (const auto edite = TexteEdite(controle.Widget)) {
        return *edite;
    }
    if (const auto legende = Legende(controle.Widget)) {
        return *legende;
    }
    if (QAbstractItemView* vue = Vue(controle.Widget)) {
        const int rang = RangChoisi(vue);
        return rang < 0 ? QString() : TexteRangee(vue, Rangees(vue)[rang]);
    }
    const QVariant texte = controle.Widget->property("text");
    return texte.isValid() ? texte.toString() : throw Echec{QStringLiteral("le contrôle n'a pas de texte")};
}

QVariantList Lignes(const Controle& controle)
{
    if (controle.Entree && controle.Entree->menu()) {
        return LignesMenu(*controle.Entree->menu());
    }
    if (const QTabBar* onglets = Onglets(controle.Widget)) {
        return LignesOnglets(*onglets);
    }
    QVariantList lignes;
    if (const auto* liste = qobject_cast<QComboBox*>(controle.Widget)) {
        for (int i = 0; i < liste->count(); ++i) {
            lignes.append(liste->itemText(i));
        }
        return lignes;
    }
    QAbstractItemView* vue = Vue(controle.Widget);
    if (!vue) {
        Sans(controle, QStringLiteral("rangées"));
    }
    for (const QModelIndex& index : Rangees(vue)) {
        lignes.append(TexteRangee(vue, index));
    }
    return lignes;
}

QVariantList Donnees(const Controle& controle)
{
    QVariantList donnees;
    if (const auto* liste = qobject_cast<QComboBox*>(controle.Widget)) {
        for (int i = 0; i < liste->count(); ++i) {
            donnees.append(Donnee(liste->itemData(i)));
        }
        return donnees;
    }
    QAbstractItemView* vue = Vue(controle.Widget);
    if (!vue) {
        Sans(controle, QStringLiteral("rangées"));
    }
    for (const QModelIndex& index : Rangees(vue)) {
        donnees.append(Donnee(index.data(Qt::UserRole)));
    }
    return donnees;
}

int Selection(const Controle& controle)
{
    if (const auto* liste = qobject_cast<QComboBox*>(controle.Widget)) {
        return liste->currentIndex();
    }
    if (const QTabBar* onglets = Onglets(controle.Widget)) {
        return onglets->currentIndex();
    }
    if (QAbstractItemView* vue = Vue(controle.Widget)) {
        return RangChoisi(vue);
    }
    Sans(controle, QStringLiteral("rangées"));
}

int EtatCoche(const Controle& controle)
{
    if (controle.Entree) {
        return controle.Entree->isChecked() ? 1 : 0;
    }
    if (const auto* boite = qobject_cast<QCheckBox*>(controle.Widget)) {
        constexpr int kEtats[] = {0, 2, 1};
        return kEtats[boite->checkState()];
    }
    if (const auto* bouton = qobject_cast<QAbstractButton*>(controle.Widget)) {
        return bouton->isChecked() ? 1 : 0;
    }
    if (const auto* groupe = qobject_cast<QGroupBox*>(controle.Widget)) {
        return groupe->isChecked() ? 1 : 0;
    }
    Sans(controle, QStringLiteral("coche"));
}

bool EstVisible(const Controle& controle)
{
    if (!controle.Entree) {
        return controle.Widget->isVisible();
    }
    const QMenu* menu = controle.Entree->menu();
    return menu ? menu->isVisible() : controle.Entree->isVisible();
}

bool EstActif(const Controle& controle)
{
    return controle.Entree ? controle.Entree->isEnabled() : controle.Widget->isEnabled();
}

QVariantMap Aspect(const Controle& controle, const QVariant& rangee)
{
    if (controle.Entree) {
        const QPalette palette = controle.Fenetre->palette();
        return Decrit(controle.Entree->font(), palette.color(QPalette::WindowText),
                      palette.color(QPalette::Window));
    }
    QWidget* widget = controle.Widget;
    if (QAbstractItemView* vue = Vue(widget); vue && !EstNul(rangee)) {
        return AspectRangee(vue, RangeeVoulue(vue, rangee));
    }
    return Decrit(widget->font(), widget->palette().color(widget->foregroundRole()), FondVu(widget));
}

QString EtatFenetre(const QWidget* fenetre)
{
    if (!fenetre || !fenetre->isVisible()) {
        return QStringLiteral("cachee");
    }
    if (fenetre->isMinimized()) {
        return QStringLiteral("reduite");
    }
    return fenetre->isMaximized() ? QStringLiteral("agrandie") : QStringLiteral("normale");
}

QVariantList Feuille(const Controle& controle)
{
    const page::PorteDessin* porte = controle.Widget ? PorteDessin(controle.Widget) : nullptr;
    if (!porte) {
        Sans(controle, QStringLiteral("dessin"));
    }
    return VersItemsScript(porte->DessinMontre());
}

} // namespace scenario
