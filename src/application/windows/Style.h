#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPushButton>
#include <QString>

class QAction;
class QApplication;
class QLabel;
class QLineEdit;
class QMenu;
class QTabBar;
class QToolButton;
class QVBoxLayout;
class QWidget;

/// The one place for colours, sizes, fonts and icons of every window.
namespace application::style {

constexpr int kMarge = 14; ///< of a window, in pixels at 100 %, as all below
constexpr int kMargeCarte = 14;
constexpr int kEntreGroupes = 12;
constexpr int kDansGroupe = 6;
constexpr int kHauteurBouton = 34;
constexpr int kHauteurRangee = 26;
constexpr int kTailleIcone = 18;

/// The colours in use, by what they stand for.
enum class Ton {
    Accueil, ///< 237, 244, 252: the tile that leads to the prescriptions
    Page,    ///< page blue 222, 235, 250
    Fond,    ///< its lighter tint, the ground of windows
    Encre,   ///< what acts: primary button, focus, headings, links, selection
    Jaune,   ///< medications used before
    Texte,
    Discret,     ///< captions beside a control, contrast 4.5 to 1 on white
    Filet,       ///< hairlines
    Eteint,      ///< what is disabled
    Rouge,       ///< what forbids or destroys, nothing else
    RougeSombre, ///< 192, 0, 0: the command that hands a certificate to the page
    Blanc
};

QColor Teinte(Ton ton);

/// Makes French what the toolkit takes for the system's language, as its file dialogue does for dates.
/// Before the application and any locale is made; the environment stays as it was.
void ParleFrancais();

/// Style, font, palette, style sheet, French texts of Qt and the window icon for the whole program.
void Installe(QApplication& application);

/// An icon of `cmake/icones.txt` by its name ("plus-lg", "trash3", "printer"), in ink blue, or white for a
/// primary button. It is tinted when first painted, at any size and pixel density.
QIcon Icone(const QString& nom, bool clair = false);
QIcon Icone(const QString& nom, Ton ton);

/// A push button: object name, caption with its Alt letter ("&Ajouter"), icon name or empty.
QPushButton* Bouton(const QString& nomObjet, const QString& texte, const QString& icone, QWidget* parent);
/// The window's one primary button: in a dialogue Enter presses it.
QPushButton* BoutonPrincipal(const QString& nomObjet, const QString& texte, const QString& icone,
                             QWidget* parent);
/// The same with its caption in dark red on white: it puts another document in the place of the one on the
/// page.
QPushButton* BoutonPrincipalRouge(const QString& nomObjet, const QString& texte, const QString& icone,
                                  QWidget* parent);
/// A button that destroys something.
QPushButton* BoutonDestructeur(const QString& nomObjet, const QString& texte, const QString& icone,
                               QWidget* parent);
/// A large tile: an icon and, on it, a caption that is a button of its own and leaves the mouse to the tile.
/// `texte` bears the Alt letter of the tile.
QPushButton* BoutonAccueil(const QString& nomObjet, const QString& nomLegende, const QString& texte,
                           const QString& icone, QWidget* parent);
/// Icon and caption at the left, for buttons that stand in a column. Before the button is first shown.
void AligneAGauche(QPushButton* bouton);
/// Less room beside the caption, for buttons that stand in a long row. Before the button is first shown.
void Serre(QPushButton* bouton);
/// The caption is underlined while the mouse is over the button.
void SouligneSousLaSouris(QPushButton* bouton);
/// A text that acts as a link: underlined under the mouse and in focus.
QPushButton* Lien(const QString& nomObjet, const QString& texte, QWidget* parent);
/// A square button with an icon alone; the caption is its accessible name and tool tip.
QToolButton* BoutonIcone(const QString& nomObjet, const QString& texte, const QString& icone,
                         QWidget* parent);

/// A heading in ink blue; `compagnon` takes its Alt letter.
QLabel* Titre(const QString& nomObjet, const QString& texte, QWidget* parent, QWidget* compagnon = nullptr);
/// A text in the quiet colour: a caption, a unit, a hint; `compagnon` takes its Alt letter.
QLabel* Legende(const QString& nomObjet, const QString& texte, QWidget* parent, QWidget* compagnon = nullptr);

/// A warning in red: something is about to be lost or refused.
QLabel* Avertissement(const QString& nomObjet, const QString& texte, QWidget* parent);

/// A white card with rounded corners; lay the group out in it (margins `kMargeCarte`).
QWidget* Carte(QWidget* parent);
/// The layout of a group in its card, a column unless another kind is named.
template <typename Disposition = QVBoxLayout> Disposition* DansCarte(QWidget* carte)
{
    auto* disposition = new Disposition(carte);
    disposition->setContentsMargins(kMargeCarte, kMargeCarte, kMargeCarte, kMargeCarte);
    disposition->setSpacing(kDansGroupe);
    return disposition;
}

/// Gives a card the colours of the main window without a doctor, or its own back. `rang` counts the cards of
/// the window, from 0.
void TeinteSansMedecin(QWidget* carte, int rang, bool sansMedecin);

/// Frames a label that shows a sample: a picture, a word in its font.
void Encadre(QLabel* echantillon);

/// What scrolls when the screen is too small for it; no frame of its own.
QWidget* Defilement(QWidget* contenu, QWidget* parent);

/// Less room around the words of a tab strip, for a window that is narrow.
void SerreOnglets(QTabBar* onglets, bool oui);

/// Makes an entry the menu's default one, in bold.
void EntreeParDefaut(QMenu* menu, QAction* entree);

/// The program's name in large letters beside its icon.
QWidget* Enseigne(QWidget* parent);

/// The window's vertical layout with its margins and the space between groups.
QVBoxLayout* Fenetre(QWidget* fenetre);

/// The fixed-width font of lists in columns, "Courier New".
QFont PoliceFixe();

/// First size of a window, held within the screen that it appears on.
void Dimensionne(QWidget* fenetre, int largeur, int hauteur);

/// The order in which Tab walks through the controls.
void OrdreTab(const QList<QWidget*>& controles);

/// A key that brings the focus to a control without a letter of its own, while the control is shown; its
/// tool tip names the key after its accessible name.
void RaccourciVers(QWidget* controle, const QString& touche);

/// What is pasted into a line of text stays one line: a line break becomes a blank, one at the end goes.
void GardeUneLigne(QLineEdit* champ);

/// Accessible name and tool tip in one call; `touche` ("F5") is shown in the tip.
void Nomme(QWidget* controle, const QString& nom, const QString& touche = {});

} // namespace application::style
