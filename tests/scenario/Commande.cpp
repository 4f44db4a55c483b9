#include "scenario/Commande.h"

#include <QCommandLineParser>

namespace scenario {

namespace {

QString Usage()
{
    return QStringLiteral(
        "scenario FICHIER.js [FICHIER.js ...] [--sortie DIR] [--monde DIR] [-j N] [--limite SECONDES] "
        "[--attente SECONDES]");
}

} // namespace

std::optional<Commande> LitCommande(const QStringList& arguments, QString& faute)
{
    QCommandLineParser lecteur;
    const QString valeur = QStringLiteral("valeur");
    const QCommandLineOption sortie(QStringLiteral("sortie"), {}, valeur);
    const QCommandLineOption monde(QStringLiteral("monde"), {}, valeur);
    const QCommandLineOption limite(QStringLiteral("limite"), {}, valeur, QStringLiteral("60"));
    const QCommandLineOption ensemble(QStringLiteral("j"), {}, valeur, QStringLiteral("1"));
    const QCommandLineOption attente(QStringLiteral("attente"), {}, valeur, QStringLiteral("5"));
    const QCommandLineOption un(QStringLiteral("un"));
    lecteur.addOptions({sortie, monde, limite, ensemble, attente, un});
    const bool lu = lecteur.parse(arguments);
    Commande commande{.Fichiers = lecteur.positionalArguments(),
                      .Sortie = lecteur.value(sortie),
                      .Monde = lecteur.value(monde),
                      .Limite = lecteur.value(limite).toInt(),
                      .Ensemble = lecteur.value(ensemble).toInt(),
                      .Attente = lecteur.value(attente).toInt(),
                      .Un = lecteur.isSet(un)};
    if (!lu) {
        faute = lecteur.errorText();
    } else if (commande.Fichiers.isEmpty() || commande.Limite < 1 || commande.Ensemble < 1 ||
               commande.Attente < 1) {
        faute = Usage();
    } else if (!commande.Monde.isEmpty() && commande.Fichiers.size() > 1) {
        faute = QStringLiteral("--monde ne va qu'avec un seul fichier");
    } else {
        return commande;
    }
    return std::nullopt;
}

} // namespace scenario
