#include "application/windows/StyleQss.h"

#include "application/windows/Style.h"

namespace application::style {

namespace {

// "@name@" stands for a colour. One entry a kind of control.
constexpr QLatin1String kBoutons(R"(
QPushButton { background: @blanc@; border: 1px solid @filet@; border-radius: 6px; color: @texte@;
    min-height: 20px; padding: 6px 13px; outline: none; }
QPushButton:hover { background: @page@; border-color: @encre@; }
QPushButton:pressed { background: @filet@; }
QPushButton:focus { border: 2px solid @encre@; padding: 5px 12px; }
QPushButton:disabled { color: @eteint@; background: @fond@; border: 1px solid @filet@; padding: 6px 13px; }
QPushButton[genre="principal"] { background: @encre@; border-color: @encre@; color: white; font-weight: bold; }
QPushButton[genre="principal"]:hover { background: @encreSurvol@; }
QPushButton[genre="principal"]:pressed { background: @encreAppui@; }
QPushButton[genre="principal"]:focus { border: 3px double white; padding: 4px 11px; }
QPushButton[genre="principal"]:disabled { background: @filet@; border: 1px solid @filet@; color: @discret@;
    padding: 6px 13px; }
QPushButton[teinte="rouge"][genre="principal"] { background: @blanc@; border: 2px solid @encre@; color: @rougeSombre@;
    padding: 5px 12px; }
QPushButton[teinte="rouge"][genre="principal"]:hover { background: @page@; }
QPushButton[teinte="rouge"][genre="principal"]:pressed { background: @filet@; }
QPushButton[teinte="rouge"][genre="principal"]:focus { border: 3px double @encre@; padding: 4px 11px; }
QPushButton[teinte="rouge"][genre="principal"]:disabled { background: @filet@; border: 1px solid @filet@;
    color: @discret@; padding: 6px 13px; }
QPushButton[genre="destructeur"] { color: @rouge@; }
QPushButton[genre="destructeur"]:hover { background: @rougeSurvol@; border-color: @rouge@; }
QPushButton[genre="destructeur"]:focus { border-color: @rouge@; }
QPushButton[genre="destructeur"]:disabled { color: @eteint@; }
QPushButton[genre="accueil"] { background: @accueil@; border: 1px solid @encre@; border-radius: 10px; text-align: left;
    min-height: 84px; padding: 0 0 0 21px; }
QPushButton[genre="accueil"]:hover { background: @page@; }
QPushButton[genre="accueil"]:pressed { background: @filet@; }
QPushButton[genre="accueil"]:focus { border-width: 2px; padding-left: 20px; }
QPushButton[genre="accueilLegende"] { background: transparent; border: none; color: @encre@; font-size: 13pt;
    font-weight: bold; text-align: left; padding: 0; }
QPushButton[genre="lien"] { background: transparent; border: 1px solid transparent; color: @encre@; padding: 2px 1px;
    min-height: 18px; text-align: left; }
QPushButton[genre="lien"]:hover { text-decoration: underline; }
QPushButton[genre="lien"]:focus { border: 1px solid @encre@; text-decoration: underline; }
QPushButton[alignement="gauche"] { text-align: left; }
QPushButton[survol="souligne"]:hover { text-decoration: underline; }
QPushButton[alignement="serre"], QPushButton[alignement="serre"]:disabled { padding: 6px 8px; }
QPushButton[alignement="serre"]:focus { padding: 5px 7px; }
QPushButton[alignement="serre"][genre="principal"]:focus { padding: 4px 6px; }
QPushButton::menu-indicator { image: url(:/indicateurs/chevron-down-034ba2.png); subcontrol-position: right center;
    subcontrol-origin: padding; right: 8px; width: 12px; height: 12px; }
QToolButton { background: @blanc@; border: 1px solid @filet@; border-radius: 6px; padding: 5px; }
QToolButton:hover { background: @page@; border-color: @encre@; }
QToolButton:pressed, QToolButton:checked { background: @filet@; }
QToolButton:focus { border: 2px solid @encre@; padding: 4px; }
QToolButton:disabled { background: @fond@; }
)");

constexpr QLatin1String kSaisies(R"(
QLineEdit, QPlainTextEdit, QTextEdit, QAbstractSpinBox, QComboBox, QListView, QTreeView, QTableView {
    background: @blanc@; border: 1px solid @filet@; border-radius: 6px; color: @texte@;
    selection-background-color: @encre@; selection-color: white; }
QLineEdit { padding: 5px 9px; min-height: 20px; }
QPlainTextEdit, QTextEdit { padding: 4px; }
QLineEdit:focus { border: 2px solid @encre@; padding: 4px 8px; }
QPlainTextEdit:focus, QTextEdit:focus, QListView:focus, QTreeView:focus, QTableView:focus {
    border: 2px solid @encre@; padding: 3px; }
QListView, QTreeView, QTableView { padding: 4px; outline: 0; }
QLineEdit:disabled, QPlainTextEdit:disabled, QTextEdit:disabled, QAbstractSpinBox:disabled, QComboBox:disabled,
QListView:disabled, QTreeView:disabled { background: @fond@; color: @eteint@; }
QLineEdit[readOnly="true"], QTextEdit[readOnly="true"], QPlainTextEdit[readOnly="true"] { background: @fond@; }
QTextBrowser[readOnly="true"] { background: @blanc@; }
QComboBox { padding: 5px 9px; min-height: 20px; combobox-popup: 0; }
QComboBox:hover { border-color: @encre@; }
QComboBox:focus, QComboBox:on { border: 2px solid @encre@; padding: 4px 8px; }
QComboBox::drop-down { border: none; width: 26px; }
QComboBox::down-arrow { image: url(:/indicateurs/chevron-down-034ba2.png); width: 12px; height: 12px; }
QComboBox::down-arrow:disabled { image: url(:/indicateurs/chevron-down-8292a6.png); }
QComboBox QLineEdit { border: none; padding: 0; background: transparent; }
QComboBox QAbstractItemView { border: 1px solid @filet@; border-radius: 0; padding: 2px; }
QAbstractSpinBox { padding: 5px 24px 5px 9px; min-height: 20px; }
QAbstractSpinBox:focus { border: 2px solid @encre@; padding: 4px 23px 4px 8px; }
QAbstractSpinBox QLineEdit { border: none; padding: 0; min-height: 0; background: transparent; }
QAbstractSpinBox::up-button, QAbstractSpinBox::down-button { border: none; width: 22px; }
QAbstractSpinBox::up-button { subcontrol-position: top right; }
QAbstractSpinBox::down-button { subcontrol-position: bottom right; }
QAbstractSpinBox::up-arrow { image: url(:/indicateurs/chevron-up-034ba2.png); width: 10px; height: 10px; }
QAbstractSpinBox::down-arrow { image: url(:/indicateurs/chevron-down-034ba2.png); width: 10px; height: 10px; }
QHeaderView::section { background: @fond@; color: @discret@; border: none; border-bottom: 1px solid @filet@;
    padding: 6px 8px; }
)");

constexpr QLatin1String kCases(R"(
QCheckBox, QRadioButton { spacing: 8px; padding: 3px 4px; border: 1px solid transparent; border-radius: 4px; }
QCheckBox:focus, QRadioButton:focus { border-color: @encre@; }
QCheckBox:disabled, QRadioButton:disabled { color: @eteint@; }
QCheckBox::indicator, QRadioButton::indicator { width: 16px; height: 16px; border: 1px solid @discret@;
    background: @blanc@; border-radius: 4px; }
QRadioButton::indicator { border-radius: 8px; }
QCheckBox::indicator:hover, QRadioButton::indicator:hover { border-color: @encre@; background: @page@; }
QCheckBox::indicator:checked { background: @encre@; border-color: @encre@;
    image: url(:/indicateurs/check-lg-ffffff.png); }
QRadioButton::indicator:checked { border: 5px solid @encre@; width: 8px; height: 8px; background: @blanc@; }
QCheckBox::indicator:disabled, QRadioButton::indicator:disabled { border-color: @filet@; background: @fond@; }
QCheckBox::indicator:checked:disabled { image: url(:/indicateurs/check-lg-8292a6.png); }
QRadioButton::indicator:checked:disabled { border-color: @eteint@; }
QGroupBox { background: @blanc@; border: 1px solid @filet@; border-radius: 10px; margin-top: 26px; padding: 12px; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 2px; top: 2px; color: @encre@;
    font-weight: bold; }
)");

constexpr QLatin1String kCadres(R"(
QLabel { background: transparent; }
QLabel[genre="titre"] { color: @encre@; font-size: 12pt; font-weight: bold; }
QLabel[genre="enseigne"] { color: @encre@; font-size: 20pt; font-weight: bold; }
QLabel[genre="avertissement"] { color: @rouge@; font-weight: bold; }
QLabel[genre="legende"] { color: @discret@; }
QLabel[genre="echantillon"] { background: @blanc@; border: 1px solid @filet@; border-radius: 6px; }
QLabel[genre="echantillon"]:disabled { background: @fond@; }
QFrame[genre="carte"] { background: @blanc@; border: 1px solid @page@; border-radius: 10px; }
QFrame[genre="carte"][medecin="aucun"] { background: rgb(235, 205, 175); border-color: rgb(220, 190, 160); }
QFrame[genre="carte"][medecin="aucunAutre"] { background: rgb(228, 198, 168); border-color: rgb(220, 190, 160); }
QTabWidget::pane { background: @blanc@; border: 1px solid @filet@; border-radius: 10px; top: -1px; }
QTabBar, QCheckBox, QRadioButton { outline: none; }
QTabBar::tab { background: transparent; color: @discret@; padding: 8px 14px; border: none;
    border-bottom: 3px solid transparent; margin-bottom: 2px; }
QTabBar[serre="oui"]::tab { padding: 8px 6px; }
QTabBar::tab:hover { color: @encre@; border-bottom-color: @filet@; }
QTabBar::tab:selected { color: @encre@; border-bottom-color: @encre@; font-weight: bold; }
QTabBar QToolButton { padding: 0; border-radius: 4px; }
QTabBar::scroller { width: 44px; }
QTabBar QToolButton::left-arrow { image: url(:/indicateurs/chevron-left-034ba2.png); width: 12px; height: 12px; }
QTabBar QToolButton::right-arrow { image: url(:/indicateurs/chevron-right-034ba2.png); width: 12px; height: 12px; }
QTabBar::tab:focus { background: @page@; border-radius: 4px; }
QMenuBar { background: @blanc@; border-bottom: 1px solid @filet@; }
QMenuBar::item { padding: 7px 12px; background: transparent; border-radius: 4px; }
QMenuBar::item:selected { background: @page@; color: @encre@; }
QMenu { background: @blanc@; border: 1px solid @filet@; padding: 6px 4px; }
QMenu::item { padding: 6px 28px 6px 12px; min-height: 16px; border-radius: 4px; }
QMenu::item:selected { background: @page@; color: @encre@; }
QMenu::item:default { font-weight: bold; }
QMenu::item:disabled { color: @eteint@; background: transparent; }
QMenu::separator { height: 1px; background: @filet@; margin: 5px 8px; }
QMenu::icon { padding-left: 8px; }
QToolTip { background: @blanc@; color: @texte@; border: 1px solid @filet@; padding: 5px; }
QProgressBar { background: @page@; border: none; border-radius: 6px; min-height: 12px; max-height: 20px;
    text-align: center; }
QProgressBar::chunk { background: @encre@; border-radius: 6px; }
QSplitter::handle { background: transparent; }
QSplitter::handle:hover { background: @filet@; }
QScrollArea { border: none; background: transparent; }
QDialogButtonBox QPushButton { min-width: 84px; }
QCalendarWidget QToolButton { border: none; color: @encre@; padding: 4px 8px; }
QCalendarWidget QWidget#qt_calendar_navigationbar { background: @fond@; }
)");

constexpr QLatin1String kAscenseurs(R"(
QAbstractScrollArea::corner { background: transparent; border: none; }
QScrollBar { background: transparent; border: none; }
QScrollBar:vertical { width: 14px; margin: 2px; }
QScrollBar:horizontal { height: 14px; margin: 2px; }
QScrollBar::handle { background: @filet@; border-radius: 5px; }
QScrollBar::handle:vertical { min-height: 40px; }
QScrollBar::handle:horizontal { min-width: 40px; }
QScrollBar::handle:hover, QScrollBar::handle:pressed { background: @eteint@; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)");

} // namespace

QString FeuilleDeStyle()
{
    QString feuille = kBoutons + kSaisies + kCases + kCadres + kAscenseurs;
    const auto pose = [&](QLatin1String nom, const QColor& couleur) { feuille.replace(nom, couleur.name()); };
    pose(QLatin1String("@blanc@"), Teinte(Ton::Blanc));
    pose(QLatin1String("@filet@"), Teinte(Ton::Filet));
    pose(QLatin1String("@page@"), Teinte(Ton::Page));
    pose(QLatin1String("@accueil@"), Teinte(Ton::Accueil));
    pose(QLatin1String("@fond@"), Teinte(Ton::Fond));
    pose(QLatin1String("@encre@"), Teinte(Ton::Encre));
    pose(QLatin1String("@encreSurvol@"), Teinte(Ton::Encre).lighter(120));
    pose(QLatin1String("@encreAppui@"), Teinte(Ton::Encre).darker(130));
    pose(QLatin1String("@texte@"), Teinte(Ton::Texte));
    pose(QLatin1String("@discret@"), Teinte(Ton::Discret));
    pose(QLatin1String("@eteint@"), Teinte(Ton::Eteint));
    pose(QLatin1String("@rougeSombre@"), Teinte(Ton::RougeSombre));
    pose(QLatin1String("@rouge@"), Teinte(Ton::Rouge));
    pose(QLatin1String("@rougeSurvol@"), Teinte(Ton::Rouge).lighter(520));
    return feuille;
}

} // namespace application::style
