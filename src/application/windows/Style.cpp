#include "application/windows/Style.h"

#include "application/windows/StyleQss.h"
#include "application/windows/StyleScriptelle.h"

#include <QApplication>
#include <QFontDatabase>
#include <QLocale>
#include <QLoggingCategory>
#include <QPalette>
#include <QTranslator>

static void ChargeRessources()
{
    Q_INIT_RESOURCE(style);
}

namespace application::style {

namespace {

constexpr double kPointsTexte = 10.5;

void InstallePolice(QApplication& application)
{
    const int normale = QFontDatabase::addApplicationFont(QStringLiteral(":/Inter-Regular.otf"));
    QFontDatabase::addApplicationFont(QStringLiteral(":/Inter-Bold.otf"));
    QFont police = application.font();
    if (normale >= 0) {
        police = QFont(QStringLiteral("Inter"));
    } else {
        qWarning("The font Inter is not in the program: the system's font serves instead.");
    }
    police.setPointSizeF(kPointsTexte);
    QApplication::setFont(police);
}

/// Windows has a font of its own for each of these, and sets it again whenever its theme changes.
QString PoliceDesBoites()
{
    return QStringLiteral(
               "QLabel#qt_msgbox_label, QMenu, QMenuBar, QToolTip { font-family: \"%1\"; font-size: %2pt; }")
        .arg(QApplication::font().family())
        .arg(kPointsTexte);
}

void InstalleTextes(QApplication& application)
{
    auto* traducteur = new QTranslator(&application);
    if (traducteur->load(QStringLiteral(":/qtbase_fr.qm"))) {
        QCoreApplication::installTranslator(traducteur);
    } else {
        qWarning("Qt's French texts are not in the program.");
    }
}

QPalette Palette()
{
    QPalette palette;
    const auto pose = [&](QPalette::ColorRole role, Ton ton) { palette.setColor(role, Teinte(ton)); };
    pose(QPalette::Window, Ton::Fond);
    pose(QPalette::Base, Ton::Blanc);
    pose(QPalette::AlternateBase, Ton::Fond);
    pose(QPalette::Button, Ton::Blanc);
    pose(QPalette::ToolTipBase, Ton::Blanc);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        pose(role, Ton::Texte);
        palette.setColor(QPalette::Disabled, role, Teinte(Ton::Eteint));
    }
    pose(QPalette::PlaceholderText, Ton::Discret);
    pose(QPalette::Highlight, Ton::Encre);
    pose(QPalette::HighlightedText, Ton::Blanc);
    pose(QPalette::Link, Ton::Encre);
    pose(QPalette::Mid, Ton::Filet);
    return palette;
}

QIcon IconeProgramme()
{
    QIcon icone;
    for (const int taille : {16, 32, 48, 64}) {
        icone.addFile(QStringLiteral(":/scriptelle-%1.png").arg(taille), QSize(taille, taille));
    }
    return icone;
}

} // namespace

QColor Teinte(Ton ton)
{
    switch (ton) {
    case Ton::Page:
        return QColor(222, 235, 250);
    case Ton::Accueil:
        return QColor(237, 244, 252);
    case Ton::Fond:
        return QColor(243, 247, 252);
    case Ton::Encre:
        return QColor(3, 75, 162);
    case Ton::Jaune:
        return QColor(249, 237, 160);
    case Ton::Texte:
        return QColor(24, 33, 46);
    case Ton::Discret:
        return QColor(84, 98, 118);
    case Ton::Filet:
        return QColor(197, 211, 230);
    case Ton::Eteint:
        return QColor(130, 146, 166);
    case Ton::Rouge:
        return QColor(180, 35, 24);
    case Ton::RougeSombre:
        return QColor(192, 0, 0);
    case Ton::Blanc:
        break;
    }
    return Qt::white;
}

QFont PoliceFixe()
{
    QFont police(QStringLiteral("Courier New"));
    police.setStyleHint(QFont::TypeWriter);
    police.setPointSizeF(kPointsTexte);
    return police;
}

void ParleFrancais()
{
#ifndef Q_OS_WIN
    // The toolkit reads the system's language once, at the first question.
    const bool presente = qEnvironmentVariableIsSet("LC_ALL");
    const QByteArray avant = qgetenv("LC_ALL");
    qputenv("LC_ALL", "fr_FR.UTF-8");
    static_cast<void>(QLocale::system());
    presente ? qputenv("LC_ALL", avant) : qunsetenv("LC_ALL");
#endif
}

void Installe(QApplication& application)
{
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    ChargeRessources();
    InstalleTextes(application);
    InstallePolice(application);
    QApplication::setStyle(new StyleScriptelle);
    QApplication::setPalette(Palette());
    application.setStyleSheet(FeuilleDeStyle() + PoliceDesBoites());
    QApplication::setWindowIcon(IconeProgramme());
}

} // namespace application::style
