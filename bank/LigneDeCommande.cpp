#include "bank/LigneDeCommande.h"

#include <QLocale>

namespace banque {

namespace {

QString Compte(qint64 nombre)
{
    // An ordinary blank: a terminal may show no other one.
    return QLocale(QLocale::French).toString(nombre).replace(QChar(0x202F), u' ').replace(QChar(0xA0), u' ');
}

QString LigneDuFichier(const BilanFichier& fichier)
{
    QString ligne = QStringLiteral("%1 : %2 ligne(s) lue(s), %3 gardée(s)")
                        .arg(fichier.Nom, Compte(fichier.Lues), Compte(fichier.Gardees));
    for (auto ecart = fichier.Ecartees.begin(); ecart != fichier.Ecartees.end(); ++ecart) {
        ligne += QStringLiteral(", %1 écartée(s) (%2)").arg(Compte(*ecart), ecart.key());
    }
    ligne += QStringLiteral(", %1 refusée(s)").arg(Compte(fichier.Refusees));
    return ligne + (fichier.Vides > 0 ? QStringLiteral(", %1 vide(s)\n").arg(Compte(fichier.Vides))
                                      : QStringLiteral("\n"));
}

} // namespace

std::optional<Demande> LitArguments(const QStringList& arguments)
{
    if (arguments.value(0) != QLatin1String("importer") || arguments.size() % 2 != 0) {
        return std::nullopt;
    }
    Demande demande{.Dossier = arguments.value(1), .Vers = {}};
    for (qsizetype i = 2; i < arguments.size(); i += 2) {
        const QString& valeur = arguments[i + 1];
        if (arguments[i] == QLatin1String("--vers")) {
            demande.Vers = valeur;
        } else if (arguments[i] == QLatin1String("--interactions")) {
            demande.Interactions = valeur;
        } else if (arguments[i] == QLatin1String("--nature")) {
            demande.Nature = valeur;
        } else if (arguments[i] == QLatin1String("--date")) {
            demande.DateDonnees = QDate::fromString(valeur, Qt::ISODate);
            if (!demande.DateDonnees.isValid()) {
                return std::nullopt;
            }
        } else {
            return std::nullopt;
        }
    }
    const bool complete = !demande.Dossier.isEmpty() && !demande.Vers.isEmpty();
    return complete ? std::optional(demande) : std::nullopt;
}

QString Usage()
{
    return QStringLiteral(
        "Usage : scriptelle-banque importer DOSSIER [--interactions FICHIER] --vers banque.sqlite\n"
        "       [--date aaaa-mm-jj] [--nature TEXTE]\n"
        "DOSSIER contient les fichiers de la Base de données publique des médicaments,\n"
        "sous leur nom d'origine (CIS_bdpm.txt, CIS_CIP_bdpm.txt, ...).\n"
        "FICHIER est le texte du Thésaurus des interactions médicamenteuses.\n"
        "TEXTE dit ce que sont les données, quand elles ne sont pas la base entière.\n"
        "Fin : 0 importée, 3 importée avec des lignes refusées, 1 échec, 2 usage, 130 "
        "interrompue.\n");
}

QString TexteBilan(const Bilan& bilan)
{
    QString texte =
        QStringLiteral("Données du %1\n")
            .arg(QDate::fromString(bilan.DateDonnees, Qt::ISODate).toString(QStringLiteral("dd/MM/yyyy")));
    for (const BilanFichier& fichier : bilan.Fichiers) {
        texte += LigneDuFichier(fichier);
    }
    for (const QString& ligne : bilan.Interactions) {
        texte += ligne + u'\n';
    }
    for (const QString& avertissement : bilan.Avertissements) {
        texte += avertissement + u'\n';
    }
    for (const BilanFichier& fichier : bilan.Fichiers) {
        for (const Remarque& remarque : fichier.Remarques) {
            const bool refusee = remarque.Genre == Remarque::Genre::Refusee;
            texte += QStringLiteral("%1, ligne %2, %3 : %4\n")
                         .arg(fichier.Nom)
                         .arg(remarque.Ligne)
                         .arg(refusee ? QStringLiteral("refusée") : QStringLiteral("gardée"), remarque.Motif);
        }
    }
    return texte;
}

QString Barre(const QString& fichier, qint64 faites, qint64 total, int largeur)
{
    const qint64 pleines = total > 0 ? faites * largeur / total : 0;
    const qint64 pourCent = total > 0 ? faites * 100 / total : 0;
    return QStringLiteral("[%1] %2 % %3")
        .arg(QString(pleines, u'#').leftJustified(largeur, u'.'))
        .arg(pourCent, 3)
        .arg(fichier, -26);
}

} // namespace banque
