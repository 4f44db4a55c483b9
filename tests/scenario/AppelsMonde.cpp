#include "common/Texte8.h"
#include "page/Surface.h"
#include "scenario/Conversions.h"
#include "scenario/Echec.h"
#include "scenario/Fichiers.h"
#include "scenario/Langage.h"
#include "scenario/Tables.h"

#include <QDir>

namespace scenario {

namespace {

QDateTime Instant(const QString& texte)
{
    for (const auto& forme : {QStringLiteral("dd/MM/yyyy"), QStringLiteral("dd/MM/yyyy hh:mm"),
                              QStringLiteral("dd/MM/yyyy hh:mm:ss")}) {
        QDateTime instant = QDateTime::fromString(texte, forme);
        if (instant.isValid()) {
            return texte.contains(QLatin1Char(':')) ? instant : QDateTime(instant.date(), QTime(10, 0));
        }
    }
    throw Echec{QStringLiteral("« %1 » n'est pas une date jj/mm/aaaa").arg(texte)};
}

QVariantList Textes(const QStringList& textes)
{
    return QVariantList(textes.begin(), textes.end());
}

QStringList NomsDossier(const QString& chemin)
{
    if (!QDir(chemin).exists()) {
        throw Echec{QStringLiteral("le dossier « %1 » n'existe pas").arg(chemin)};
    }
    QStringList noms = QDir(chemin).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    noms.sort();
    return noms;
}

} // namespace

void Langage::AjouteMonde()
{
    Ajoute(QStringLiteral("horloge"), 1, 1, [this](const Valeurs& valeurs) {
        const QDateTime instant = Instant(valeurs.Texte(0));
        return relais_.Lit([&] {
            session_.Horloge.Instant = instant;
            return QVariant();
        });
    });
    Ajoute(QStringLiteral("imprimantes"), 1, 2, [this](const Valeurs& valeurs) {
        QStringList noms;
        for (const QVariant& nom : valeurs.Liste(0)) {
            noms.append(nom.toString());
        }
        const QString defaut = valeurs.Absente(1) ? noms.value(0) : valeurs.Texte(1);
        return relais_.Lit([&] {
            session_.Imprimantes.Systeme = noms;
            session_.Imprimantes.Defaut = defaut;
            return QVariant();
        });
    });
    Ajoute(QStringLiteral("plateau"), 1, 1, [this](const Valeurs& valeurs) {
        const bool existe = valeurs.Booleen(0);
        return relais_.Lit([&] {
            session_.Plateau.Existe = existe;
            return QVariant();
        });
    });
}

void Langage::AjouteFichiers()
{
    Ajoute(QStringLiteral("ecrire"), 2, 2, [](const Valeurs& valeurs) {
        Ecrit(valeurs.Chemin(0), common::VersWindows1252(valeurs.Texte(1)));
        return QVariant();
    });
    Ajoute(QStringLiteral("lire"), 1, 1, [](const Valeurs& valeurs) {
        return QVariant(common::DepuisWindows1252(Lit(valeurs.Chemin(0))));
    });
    Ajoute(QStringLiteral("lireOctets"), 1, 1, [](const Valeurs& valeurs) {
        return QVariant(QString::fromLatin1(Lit(valeurs.Chemin(0)).toHex()));
    });
    Ajoute(QStringLiteral("existe"), 1, 1,
           [](const Valeurs& valeurs) { return QVariant(QFileInfo::exists(valeurs.Chemin(0))); });
    Ajoute(QStringLiteral("lister"), 1, 1,
           [](const Valeurs& valeurs) { return QVariant(Textes(NomsDossier(valeurs.Chemin(0)))); });
    Ajoute(QStringLiteral("creerDossier"), 1, 1, [](const Valeurs& valeurs) {
        if (!QDir().mkpath(valeurs.Chemin(0))) {
            throw Echec{QStringLiteral("le dossier « %1 » ne peut pas être créé").arg(valeurs.Chemin(0))};
        }
        return QVariant();
    });
    Ajoute(QStringLiteral("copier"), 2, 2, [](const Valeurs& valeurs) {
        Copie(valeurs.Chemin(0), valeurs.Chemin(1));
        return QVariant();
    });
    Ajoute(QStringLiteral("effacer"), 1, 1, [this](const Valeurs& valeurs) {
        if (!session_.Monde.Contient(valeurs.Chemin(0))) {
            throw Echec{QStringLiteral("« %1 » est hors du monde du scénario").arg(valeurs.Chemin(0))};
        }
        Efface(valeurs.Chemin(0));
        return QVariant();
    });
}

QString Langage::CheminBase(const QString& nom)
{
    return relais_.Lit([&] { return session_.CheminBase(nom); }).toString();
}

void Langage::AjouteTables()
{
    Ajoute(QStringLiteral("table"), 2, 2, [this](const Valeurs& valeurs) {
        return QVariant(LitTable(CheminBase(valeurs.Chemin(0)), valeurs.Texte(1)));
    });
    Ajoute(QStringLiteral("ajouter"), 3, 3, [this](const Valeurs& valeurs) {
        AjouteRangee(CheminBase(valeurs.Chemin(0)), valeurs.Texte(1), valeurs.Liste(2));
        return QVariant();
    });
    Ajoute(QStringLiteral("vider"), 2, 2, [this](const Valeurs& valeurs) {
        VideTable(CheminBase(valeurs.Chemin(0)), valeurs.Texte(1));
        return QVariant();
    });
}

void Langage::AjouteImprimes()
{
    Ajoute(QStringLiteral("travaux"), 0, 0, [this](const Valeurs&) {
        return relais_.Lit([this] {
            QVariantList travaux;
            for (const auto& recu : session_.Imprimantes.Recus) {
                travaux.append(VersTravailScript(recu.Imprimante, recu.Travail));
            }
            return QVariant(travaux);
        });
    });
    Ajoute(QStringLiteral("travauxAbandonnes"), 0, 0, [this](const Valeurs&) {
        return relais_.Lit([this] {
            QVariantList travaux;
            for (const auto& travail : session_.Imprimantes.Abandonnes) {
                travaux.append(VersTravailScript({}, travail));
            }
            return QVariant(travaux);
        });
    });
    Ajoute(QStringLiteral("mesure"), 1, 2, [this](const Valeurs& valeurs) {
        const page::Police police = DepuisPoliceScript(valeurs.Brute(1).toMap());
        const QString texte = valeurs.Texte(0);
        return relais_.Lit([&] { return page::MesureLargeur(texte, police); });
    });
}

void Langage::AjouteFin()
{
    Ajoute(QStringLiteral("fini"), 0, 0,
           [this](const Valeurs&) { return relais_.Lit([this] { return session_.ConstateFin(); }); });
    Ajoute(QStringLiteral("relances"), 0, 0, [this](const Valeurs&) {
        return relais_.Lit([this] {
            QVariantList relances;
            for (const QStringList& lancement : session_.Lanceur.Relances) {
                relances.append(QVariantMap{{QStringLiteral("chemin"), lancement.value(0)},
                                            {QStringLiteral("arguments"), Textes(lancement.mid(1))}});
            }
            return QVariant(relances);
        });
    });
    Ajoute(QStringLiteral("documents"), 0, 0, [this](const Valeurs&) {
        return relais_.Lit([this] { return QVariant(Textes(session_.Lanceur.Documents)); });
    });
}

} // namespace scenario
