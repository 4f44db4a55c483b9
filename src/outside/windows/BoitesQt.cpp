#include "outside/windows/BoitesQt.h"

#include "application/windows/Style.h"
#include "outside/FiltreQt.h"
#include "outside/messages.h"
#include "page/CouleurQt.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

namespace outside {

namespace {

using application::style::Ton;

constexpr int kTailleIconeDeBoite = 36;
constexpr int kLargeurSaisie = 480;

QWidget* Dessous()
{
    QWidget* modale = QApplication::activeModalWidget();
    return modale ? modale : QApplication::activeWindow();
}

QIcon IconeDuGenre(Genre genre)
{
    switch (genre) {
    case Genre::Information:
    case Genre::QuestionInformation:
        return application::style::Icone(QStringLiteral("info-circle"));
    case Genre::Question:
        return application::style::Icone(QStringLiteral("question-circle"));
    case Genre::Stop:
        return application::style::Icone(QStringLiteral("exclamation-octagon"), Ton::Rouge);
    case Genre::Exclamation:
        return application::style::Icone(QStringLiteral("exclamation-triangle"));
    case Genre::Simple:
        break;
    }
    return {};
}

QPushButton* Place(QMessageBox& boite, Bouton bouton)
{
    switch (bouton) {
    case Bouton::OK:
        return boite.addButton(QStringLiteral("&OK"), QMessageBox::AcceptRole);
    case Bouton::Oui:
        return boite.addButton(QStringLiteral("&Oui"), QMessageBox::YesRole);
    case Bouton::Non:
        return boite.addButton(QStringLiteral("&Non"), QMessageBox::NoRole);
    case Bouton::Annuler:
        break;
    }
    return boite.addButton(QStringLiteral("&Annuler"), QMessageBox::RejectRole);
}

std::optional<QString> OuRien(const QString& texte)
{
    return texte.isEmpty() ? std::nullopt : std::optional(texte);
}

QFont VersQt(const page::Police& police)
{
    QFont resultat(police.Nom);
    resultat.setPointSizeF(qMax(police.Taille, 1.0F));
    resultat.setBold(police.Gras);
    resultat.setItalic(police.Italique);
    resultat.setUnderline(police.Souligne);
    return resultat;
}

page::Police DepuisQt(const QFont& police)
{
    return {police.family(), static_cast<float>(police.pointSizeF()), police.bold(), police.italic(),
            police.underline()};
}

} // namespace

Bouton BoutonDEchappement(const Message& message)
{
    for (const Bouton bouton : {Bouton::Annuler, Bouton::Non}) {
        if (message.Boutons.contains(bouton)) {
            return bouton;
        }
    }
    return message.Boutons.value(0, Bouton::OK);
}

QString SansSeparateur(const QString& chemin)
{
    QString resultat = QDir::fromNativeSeparators(chemin);
    while (resultat.size() > 1 && resultat.endsWith(QLatin1Char('/'))) {
        resultat.chop(1);
    }
    return resultat;
}

Bouton BoitesQt::Montre(const Message& message)
{
    QMessageBox boite(Dessous());
    boite.setWindowTitle(message.Titre);
    boite.setTextFormat(Qt::PlainText);
    boite.setText(message.Texte);
    const QIcon icone = IconeDuGenre(message.Genre);
    if (!icone.isNull()) {
        boite.setIconPixmap(
            icone.pixmap(QSize(kTailleIconeDeBoite, kTailleIconeDeBoite), boite.devicePixelRatioF()));
    }
    const Bouton echappement = BoutonDEchappement(message);
    QHash<QAbstractButton*, Bouton> places;
    for (const Bouton bouton : message.Boutons) {
        QPushButton* place = Place(boite, bouton);
        places.insert(place, bouton);
        if (bouton == message.Defaut) {
            boite.setDefaultButton(place);
        }
        if (bouton == echappement) {
            boite.setEscapeButton(place);
        }
    }
    boite.exec();
    return places.value(boite.clickedButton(), echappement);
}

std::optional<QString> BoitesQt::Demande(const Saisie& saisie)
{
    QInputDialog boite(Dessous());
    boite.setWindowTitle(saisie.Titre);
    boite.setLabelText(saisie.Invite);
    boite.setTextValue(saisie.Valeur);
    boite.setOkButtonText(QStringLiteral("&OK"));
    boite.setCancelButtonText(QStringLiteral("&Annuler"));
    boite.resize(kLargeurSaisie, boite.sizeHint().height());
    return boite.exec() == QDialog::Accepted ? std::optional(boite.textValue()) : std::nullopt;
}

std::optional<QString> BoitesQt::Dossier(const QString& titre)
{
    return OuRien(SansSeparateur(QFileDialog::getExistingDirectory(Dessous(), titre, QDir::homePath())));
}

std::optional<QString> BoitesQt::Ouvre(const ChoixFichier& choix)
{
    return OuRien(QFileDialog::getOpenFileName(Dessous(), choix.Titre, choix.Depart, FiltreQt(choix.Filtre)));
}

std::optional<QString> BoitesQt::Enregistre(const ChoixFichier& choix)
{
    const QString chemin =
        QFileDialog::getSaveFileName(Dessous(), choix.Titre, choix.Depart, FiltreQt(choix.Filtre));
    const QFileInfo complete(NomComplete(chemin, choix.Filtre));
    if (!chemin.isEmpty() && complete.exists() &&
        !Question(messages::Remplacer(complete.fileName()), Bouton::Non)) {
        return {};
    }
    return OuRien(chemin);
}

std::optional<page::Police> BoitesQt::ChoisitPolice(const page::Police& depart)
{
    bool accepte = false;
    const QFont police =
        QFontDialog::getFont(&accepte, VersQt(depart), Dessous(), QStringLiteral("Choisir la police"));
    return accepte ? std::optional(DepuisQt(police)) : std::nullopt;
}

std::optional<page::Couleur> BoitesQt::ChoisitCouleur(page::Couleur depart)
{
    const QColor couleur =
        QColorDialog::getColor(page::CouleurQt(depart), Dessous(), QStringLiteral("Choisir la couleur"));
    if (!couleur.isValid()) {
        return std::nullopt;
    }
    return page::Rvb(couleur.red(), couleur.green(), couleur.blue());
}

} // namespace outside
