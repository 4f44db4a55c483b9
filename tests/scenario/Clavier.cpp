#include "scenario/Clavier.h"

#include "scenario/Echec.h"

#include <QApplication>
#include <QComboBox>
#include <QHash>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextEdit>

namespace scenario {

namespace {

const QHash<QString, Qt::Key>& Touches()
{
    static const QHash<QString, Qt::Key> touches = {
        {QStringLiteral("Entree"), Qt::Key_Return},    {QStringLiteral("Suppr"), Qt::Key_Delete},
        {QStringLiteral("Retour"), Qt::Key_Backspace}, {QStringLiteral("Tab"), Qt::Key_Tab},
        {QStringLiteral("Echap"), Qt::Key_Escape},     {QStringLiteral("Espace"), Qt::Key_Space},
        {QStringLiteral("Haut"), Qt::Key_Up},          {QStringLiteral("Bas"), Qt::Key_Down},
        {QStringLiteral("Gauche"), Qt::Key_Left},      {QStringLiteral("Droite"), Qt::Key_Right},
        {QStringLiteral("Debut"), Qt::Key_Home},       {QStringLiteral("Fin"), Qt::Key_End},
        {QStringLiteral("PageHaut"), Qt::Key_PageUp},  {QStringLiteral("PageBas"), Qt::Key_PageDown},
        {QStringLiteral("Inser"), Qt::Key_Insert},     {QStringLiteral("Entrée"), Qt::Key_Return},
        {QStringLiteral("Échap"), Qt::Key_Escape},     {QStringLiteral("Début"), Qt::Key_Home}};
    return touches;
}

Qt::Key Touche(const QString& nom)
{
    if (Touches().contains(nom)) {
        return Touches().value(nom);
    }
    bool nombre = false;
    const int fonction = nom.startsWith(QLatin1Char('F')) ? nom.mid(1).toInt(&nombre) : 0;
    if (nombre && fonction >= 1 && fonction <= 12) {
        return static_cast<Qt::Key>(Qt::Key_F1 + fonction - 1);
    }
    if (nom.size() == 1 && nom[0].toUpper().unicode() < 0x100) {
        return static_cast<Qt::Key>(nom[0].toUpper().unicode());
    }
    throw Echec{QStringLiteral("la touche « %1 » n'existe pas").arg(nom)};
}

Qt::KeyboardModifier Modificateur(const QString& nom)
{
    if (nom == QLatin1String("Ctrl")) {
        return Qt::ControlModifier;
    }
    if (nom == QLatin1String("Maj") || nom == QLatin1String("Shift")) {
        return Qt::ShiftModifier;
    }
    if (nom == QLatin1String("Alt")) {
        return Qt::AltModifier;
    }
    throw Echec{QStringLiteral("la touche « %1 » n'existe pas").arg(nom)};
}

bool ALeFocus(const QWidget* widget)
{
    const QWidget* actuel = QApplication::focusWidget();
    return actuel && (actuel == widget || widget->isAncestorOf(actuel));
}

void Vise(const Controle& controle, Qt::FocusReason raison)
{
    if (!controle.Widget) {
        throw Echec{QStringLiteral("une entrée de menu n'a pas le focus")};
    }
    if (controle.Widget->isWindow() || ALeFocus(controle.Widget)) {
        return;
    }
    controle.Widget->setFocus(raison);
    if (!ALeFocus(controle.Widget)) {
        throw Echec{QStringLiteral("%1 : ne prend pas le focus").arg(controle.Widget->objectName())};
    }
}

/// The widget that keys go to.
QWidget* Receveur(const Controle& controle)
{
    if (QWidget* menu = QApplication::activePopupWidget()) {
        return menu;
    }
    QWidget* actuel = QApplication::focusWidget();
    return actuel && actuel->window() == controle.Fenetre ? actuel : controle.Widget;
}

QLineEdit* Ligne(QWidget* widget)
{
    if (auto* ligne = qobject_cast<QLineEdit*>(widget)) {
        return ligne;
    }
    const auto* liste = qobject_cast<QComboBox*>(widget);
    return liste ? liste->lineEdit() : widget->findChild<QLineEdit*>();
}

template <typename Edition> bool Remplace(Edition* edition, const QString& texte)
{
    if (!edition || edition->isReadOnly()) {
        return false;
    }
    edition->selectAll();
    if constexpr (std::is_same_v<Edition, QLineEdit>) {
        edition->insert(texte);
    } else {
        edition->insertPlainText(texte);
    }
    return true;
}

} // namespace

void DonneFocus(const Controle& controle)
{
    Vise(controle, Qt::TabFocusReason);
}

void TapeCaractere(const Controle& controle, const QString& caractere, bool suit)
{
    if (!suit) {
        Vise(controle, Qt::OtherFocusReason);
    }
    QWidget* receveur = Receveur(controle);
    if (caractere == QLatin1String("\n") || caractere == QLatin1String("\t")) {
        QTest::keyClick(receveur, caractere == QLatin1String("\n") ? Qt::Key_Return : Qt::Key_Tab);
        return;
    }
    const char16_t majuscule = caractere.at(0).toUpper().unicode();
    const auto touche = majuscule < 0x100 ? static_cast<Qt::Key>(majuscule) : Qt::Key_unknown;
    const auto maj = caractere.at(0).isUpper() ? Qt::ShiftModifier : Qt::NoModifier;
    QTest::sendKeyEvent(QTest::Click, receveur, touche, caractere, maj);
}

void Saisit(const Controle& controle, const QString& texte)
{
    Vise(controle, Qt::OtherFocusReason);
    if (!Remplace(qobject_cast<QTextEdit*>(controle.Widget), texte) &&
        !Remplace(qobject_cast<QPlainTextEdit*>(controle.Widget), texte) &&
        !Remplace(Ligne(controle.Widget), texte)) {
        throw Echec{QStringLiteral("%1 : le texte ne se change pas").arg(controle.Widget->objectName())};
    }
}

void TapeTouche(const Controle& controle, const QString& nom)
{
    QStringList parties = nom.split(QLatin1Char('+'));
    const Qt::Key touche = Touche(parties.takeLast());
    Qt::KeyboardModifiers modificateurs;
    for (const QString& partie : parties) {
        modificateurs |= Modificateur(partie);
    }
    Vise(controle, Qt::OtherFocusReason);
    QTest::keyClick(Receveur(controle), touche, modificateurs);
}

} // namespace scenario
