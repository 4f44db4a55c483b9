#include "scenario/Souris.h"

#include "scenario/Conversions.h"
#include "scenario/Echec.h"
#include "scenario/Rangees.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTextEdit>
#include <QWindow>

namespace scenario {

namespace {

/// A point of a widget, in its own coordinates.
struct Lieu
{
    QWidget* Widget = nullptr;
    QPoint Point;
};

void FermeMenusSauf(const QWidget* gardee)
{
    while (QWidget* menu = QApplication::activePopupWidget()) {
        if (menu == gardee || (gardee && menu->isAncestorOf(gardee))) {
            return;
        }
        menu->hide();
    }
}

void FaitVoir(QWidget* widget)
{
    for (QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto* defilement = qobject_cast<QScrollArea*>(parent)) {
            defilement->ensureWidgetVisible(widget);
        }
    }
}

/// The point in the window's coordinates; the mouse must meet the widget there.
QPoint PointFenetre(const Lieu& lieu)
{
    FaitVoir(lieu.Widget);
    QWidget* fenetre = lieu.Widget->window();
    const QPoint point = lieu.Widget->mapTo(fenetre, lieu.Point);
    if (!fenetre->rect().contains(point)) {
        throw Echec{QStringLiteral("%1 : hors de la fenêtre").arg(lieu.Widget->objectName())};
    }
    const QWidget* touche = fenetre->childAt(point);
    if (touche && touche != lieu.Widget && !lieu.Widget->isAncestorOf(touche) &&
        !touche->isAncestorOf(lieu.Widget)) {
        throw Echec{
            QStringLiteral("%1 : couvert par %2").arg(lieu.Widget->objectName(), touche->objectName())};
    }
    return point;
}

void CliqueLieu(const Lieu& lieu, Geste geste)
{
    FermeMenusSauf(lieu.Widget->window());
    QWidget* fenetre = lieu.Widget->window();
    const QPoint point = PointFenetre(lieu);
    QTest::mouseMove(fenetre->windowHandle(), point);
    if (geste == Geste::DoubleClic) {
        QTest::mouseDClick(fenetre->windowHandle(), Qt::LeftButton, {}, point);
    } else {
        const auto bouton = geste == Geste::Clic ? Qt::LeftButton : Qt::RightButton;
        QTest::mouseClick(fenetre->windowHandle(), bouton, {}, point);
    }
}

Lieu LieuRangee(QAbstractItemView* vue, const QModelIndex& index)
{
    vue->scrollTo(index);
    const QRect rect = vue->visualRect(index).intersected(vue->viewport()->rect());
    if (rect.isEmpty()) {
        throw Echec{QStringLiteral("%1 : la rangée ne peut pas être montrée").arg(vue->objectName())};
    }
    return {vue->viewport(), rect.center()};
}

Lieu LieuOnglet(QTabBar* onglets, const QVariant& rangee)
{
    QStringList textes;
    for (int i = 0; i < onglets->count(); ++i) {
        textes.append(onglets->tabText(i).remove(QLatin1Char('&')));
    }
    return {onglets, onglets->tabRect(RangVoulu(textes, rangee)).center()};
}

QTabBar* Onglets(QWidget* widget)
{
    const auto* classeur = qobject_cast<QTabWidget*>(widget);
    return classeur ? classeur->tabBar() : qobject_cast<QTabBar*>(widget);
}

/// The centre of what takes a click: of a box or option that is wider than its words, the words and the mark.
QPoint Centre(QWidget* widget)
{
    QStyleOptionButton option;
    option.initFrom(widget);
    const auto* bouton = qobject_cast<QAbstractButton*>(widget);
    option.text = bouton ? bouton->text() : QString();
    if (qobject_cast<QCheckBox*>(widget)) {
        return widget->style()->subElementRect(QStyle::SE_CheckBoxClickRect, &option, widget).center();
    }
    if (qobject_cast<QRadioButton*>(widget)) {
        return widget->style()->subElementRect(QStyle::SE_RadioButtonClickRect, &option, widget).center();
    }
    return widget->rect().center();
}

Lieu LieuVoulu(const Controle& controle, const QVariant& rangee)
{
    if (QTabBar* onglets = Onglets(controle.Widget); onglets && !EstNul(rangee)) {
        return LieuOnglet(onglets, rangee);
    }
    QAbstractItemView* vue = Vue(controle.Widget);
    if (!vue && !EstNul(rangee)) {
        throw Echec{QStringLiteral("%1 : n'a pas de rangées").arg(controle.Widget->objectName())};
    }
    if (vue && !EstNul(rangee)) {
        return LieuRangee(vue, RangeeVoulue(vue, rangee));
    }
    return {controle.Widget, Centre(controle.Widget)};
}

void CliqueEntree(QAction* entree)
{
    for (QObject* porteur : entree->associatedObjects()) {
        if (auto* menu = qobject_cast<QMenu*>(porteur); menu && menu->isVisible()) {
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entree).center());
            return;
        }
    }
    FermeMenusSauf(nullptr);
    entree->trigger();
}

void ChoisitDansListe(QComboBox& liste, const QVariant& rangee)
{
    QStringList textes;
    for (int i = 0; i < liste.count(); ++i) {
        textes.append(liste.itemText(i));
    }
    const int rang = RangVoulu(textes, rangee);
    FermeMenusSauf(nullptr);
    liste.setFocus(Qt::MouseFocusReason);
    liste.setCurrentIndex(rang);
    Q_EMIT liste.activated(rang);
    Q_EMIT liste.textActivated(textes[rang]);
}

template <typename Edition> Lieu LieuCaractere(Edition& edition, int caractere)
{
    QTextCursor curseur(edition.document());
    curseur.movePosition(QTextCursor::End);
    if (caractere < 0 || caractere > curseur.position()) {
        throw Echec{QStringLiteral("%1 : pas de caractère %2").arg(edition.objectName()).arg(caractere)};
    }
    curseur.setPosition(caractere);
    QRect rect = edition.cursorRect(curseur);
    const int depassement = rect.bottom() - edition.viewport()->height();
    if (rect.top() < 0 || depassement > 0) {
        QScrollBar* barre = edition.verticalScrollBar();
        barre->setValue(barre->value() + (rect.top() < 0 ? rect.top() : depassement));
        rect = edition.cursorRect(curseur);
    }
    return {edition.viewport(), rect.center()};
}

/// Where a click in the line places the caret before that character; -1 when it is out of sight.
int Abscisse(QLineEdit& edition, int caractere)
{
    for (int x = 0; x < edition.width(); ++x) {
        if (edition.cursorPositionAt({x, edition.height() / 2}) == caractere) {
            return x;
        }
    }
    return -1;
}

Lieu LieuCaractere(QLineEdit& edition, int caractere)
{
    if (Abscisse(edition, caractere) < 0) {
        edition.setCursorPosition(caractere);
        edition.repaint(); // scrolls it into sight
    }
    const int x = Abscisse(edition, caractere);
    if (x < 0) {
        throw Echec{QStringLiteral("%1 : pas de caractère %2").arg(edition.objectName()).arg(caractere)};
    }
    return {&edition, {x, edition.height() / 2}};
}

} // namespace

void Clique(const Controle& controle, Geste geste, const QVariant& rangee)
{
    if (controle.Entree) {
        CliqueEntree(controle.Entree);
        return;
    }
    if (auto* liste = qobject_cast<QComboBox*>(controle.Widget); liste && !EstNul(rangee)) {
        ChoisitDansListe(*liste, rangee);
        return;
    }
    CliqueLieu(LieuVoulu(controle, rangee), geste);
}

void Choisit(const Controle& controle, const QVariant& rangee)
{
    if (EstNul(rangee)) {
        throw Echec{QStringLiteral("choisir attend une rangée")};
    }
    Clique(controle, Geste::Clic, rangee);
}

void Coche(const Controle& controle, bool oui)
{
    const auto* bouton = qobject_cast<QAbstractButton*>(controle.Widget);
    if (!(bouton && bouton->isCheckable()) && !(controle.Entree && controle.Entree->isCheckable())) {
        throw Echec{QStringLiteral("le contrôle ne se coche pas")};
    }
    if ((bouton ? bouton->isChecked() : controle.Entree->isChecked()) != oui) {
        Clique(controle, Geste::Clic, {});
    }
}

void PlaceCurseur(const Controle& controle, int caractere)
{
    if (auto* ligne = qobject_cast<QLineEdit*>(controle.Widget)) {
        CliqueLieu(LieuCaractere(*ligne, caractere), Geste::Clic);
    } else if (auto* texte = qobject_cast<QTextEdit*>(controle.Widget)) {
        CliqueLieu(LieuCaractere(*texte, caractere), Geste::Clic);
    } else if (auto* simple = qobject_cast<QPlainTextEdit*>(controle.Widget)) {
        CliqueLieu(LieuCaractere(*simple, caractere), Geste::Clic);
    } else {
        throw Echec{QStringLiteral("le contrôle n'a pas de curseur")};
    }
}

void Glisse(const Controle& source, const QVariant& rangee, const Controle& cible)
{
    const Lieu depart = LieuVoulu(source, rangee);
    const Lieu arrivee = LieuVoulu(cible, {});
    QWidget* fenetre = depart.Widget->window();
    const QPoint de = PointFenetre(depart);
    const QPoint a = fenetre->mapFromGlobal(arrivee.Widget->mapToGlobal(arrivee.Point));
    QWindow* poignee = fenetre->windowHandle();
    QTest::mousePress(poignee, Qt::LeftButton, {}, de);
    constexpr int kPas = 8;
    for (int pas = 1; pas <= kPas; ++pas) {
        QTest::mouseMove(poignee, de + (a - de) * pas / kPas);
    }
    QTest::mouseRelease(poignee, Qt::LeftButton, {}, a);
}

} // namespace scenario
