#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

/// What the tests of these windows do with mouse and keyboard.
namespace gestes {

template <typename Controle> Controle* Trouve(QWidget& fenetre, const char* nom)
{
    auto* controle = fenetre.findChild<Controle*>(QString::fromLatin1(nom));
    if (!controle) {
        qFatal("no control %s", nom);
    }
    return controle;
}

inline void Clique(QWidget& fenetre, const char* nom)
{
    QTest::mouseClick(Trouve<QWidget>(fenetre, nom), Qt::LeftButton);
}

inline void Tape(QWidget& fenetre, const char* nom, const QString& texte)
{
    auto* champ = Trouve<QWidget>(fenetre, nom);
    champ->setFocus();
    for (const QChar c : texte) {
        QTest::sendKeyEvent(QTest::Click, champ, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
}

inline QString TexteDe(QWidget& fenetre, const char* nom)
{
    if (auto* champ = fenetre.findChild<QLineEdit*>(QString::fromLatin1(nom))) {
        return champ->text();
    }
    return Trouve<QLabel>(fenetre, nom)->text();
}

inline int RangChoisi(QWidget& fenetre, const char* nom)
{
    const auto choisis = Trouve<QAbstractItemView>(fenetre, nom)->selectionModel()->selectedRows();
    return choisis.isEmpty() ? -1 : choisis.front().row();
}

/// Runs once the window of that class is shown modally.
template <typename Fenetre, typename Action> void QuandOuverte(Action action)
{
    QTimer::singleShot(0, qApp, [action] {
        auto* fenetre = qobject_cast<Fenetre*>(QApplication::activeModalWidget());
        if (fenetre) {
            action(*fenetre);
        } else {
            QuandOuverte<Fenetre>(action);
        }
    });
}

/// The object names in the order that Tab follows, from the control named.
inline QStringList OrdreDeTabulation(QWidget& fenetre, const char* premier)
{
    QStringList noms;
    QWidget* depart = Trouve<QWidget>(fenetre, premier);
    QWidget* controle = depart;
    do {
        if ((controle->focusPolicy() & Qt::TabFocus) && controle->window() == &fenetre) {
            noms << controle->objectName();
        }
        controle = controle->nextInFocusChain();
    } while (controle != depart);
    return noms;
}

} // namespace gestes
