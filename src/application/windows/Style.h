#pragma once

#include <QIcon>
#include <QPushButton>
#include <QString>

class QApplication;
class QLabel;
class QWidget;

/// The one place for colours, sizes, fonts and icons of every window.
namespace application::style {

constexpr int kMarge = 14; ///< of a window, in pixels at 100 %, as all below
constexpr int kEntreGroupes = 12;
constexpr int kDansGroupe = 6;
constexpr int kHauteurBouton = 34;
constexpr int kHauteurRangee = 26;
constexpr int kTailleIcone = 18;

/// Font, palette, style sheet, French translations of Qt and the window icon for the whole program.
void Installe(QApplication& application);

/// An icon of the set by its name, tinted ("plus", "trash", "printer"); `clair` for a primary button.
QIcon Icone(const QString& nom, bool clair = false);

/// A push button: object name, caption with its Alt letter ("&Ajouter"), icon name or empty.
QPushButton* Bouton(const QString& nomObjet, const QString& texte, const QString& icone, QWidget* parent);
/// The window's one primary button: Enter presses it.
QPushButton* BoutonPrincipal(const QString& nomObjet, const QString& texte, const QString& icone,
                             QWidget* parent);
/// A button that destroys something.
QPushButton* BoutonDestructeur(const QString& nomObjet, const QString& texte, const QString& icone,
                               QWidget* parent);

/// A heading in ink blue; `compagnon` takes its Alt letter.
QLabel* Titre(const QString& nomObjet, const QString& texte, QWidget* parent, QWidget* compagnon = nullptr);

/// A white card with rounded corners; lay the group out in it.
QWidget* Carte(QWidget* parent);

/// Accessible name and tool tip in one call; `touche` ("F5") is shown in the tip.
void Nomme(QWidget* controle, const QString& nom, const QString& touche = {});

} // namespace application::style
