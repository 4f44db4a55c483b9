#include "scenario/Langage.h"

#include "scenario/Conversions.h"
#include "scenario/Echec.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <algorithm>

namespace scenario {

namespace {

constexpr int kPas = 20;

void ChargeRessource(QJSEngine& moteur, const QString& nom)
{
    QFile fichier(QStringLiteral(":/scenario/") + nom);
    if (!fichier.open(QIODevice::ReadOnly)) {
        qFatal("%s", qPrintable(nom));
    }
    const QJSValue resultat = moteur.evaluate(QString::fromUtf8(fichier.readAll()), nom);
    if (resultat.isError()) {
        qFatal("%s: %s", qPrintable(nom), qPrintable(resultat.toString()));
    }
}

} // namespace

bool Valeurs::Absente(int i) const
{
    return EstNul(Brute(i));
}

QString Valeurs::Texte(int i) const
{
    if (Brute(i).typeId() != QMetaType::QString) {
        throw Echec{QStringLiteral("la valeur %1 doit être un texte").arg(i + 1)};
    }
    return Brute(i).toString();
}

QString Valeurs::Chemin(int i) const
{
    return Texte(i).replace(QLatin1Char('\\'), QLatin1Char('/'));
}

int Valeurs::Entier(int i) const
{
    if (!EstNombre(Brute(i))) {
        throw Echec{QStringLiteral("la valeur %1 doit être un nombre").arg(i + 1)};
    }
    return Brute(i).toInt();
}

QVariantList Valeurs::Liste(int i) const
{
    if (Brute(i).typeId() != QMetaType::QVariantList) {
        throw Echec{QStringLiteral("la valeur %1 doit être une liste").arg(i + 1)};
    }
    return Brute(i).toList();
}

bool Valeurs::Booleen(int i) const
{
    if (Brute(i).typeId() != QMetaType::Bool && !EstNombre(Brute(i))) {
        throw Echec{QStringLiteral("la valeur %1 doit être true ou false").arg(i + 1)};
    }
    return Brute(i).toBool();
}

Langage::Langage(Session& session, Relais& relais, Rapport& rapport, int attente)
    : session_(session), relais_(relais), rapport_(rapport), attente_(attente),
      banque_(session.Monde.Programme())
{
    AjouteMonde();
    AjouteFichiers();
    AjouteTables();
    AjouteImprimes();
    AjouteFin();
    AjouteBoites();
    AjouteGestes();
    AjouteClavier();
    AjouteFenetres();
    AjouteLectures();
    AjouteEtats();
    AjouteBanque();
}

void Langage::Joue(const QString& chemin)
{
    fichier_ = QFileInfo(chemin).absoluteFilePath();
    QFile fichier(fichier_);
    if (!fichier.open(QIODevice::ReadOnly)) {
        rapport_.EchecScript(0, QStringLiteral("le fichier ne peut pas être lu"));
        return;
    }
    QJSEngine moteur;
    Prepare(moteur);
    QStringList pile;
    const QJSValue valeur = moteur.evaluate(QString::fromUtf8(fichier.readAll()), fichier_, 1, &pile);
    if (valeur.isError() || !pile.isEmpty()) {
        const int ligne = LigneDe(pile.join(QLatin1Char('\n')));
        const int connue = ligne > 0 ? ligne : valeur.property(QStringLiteral("lineNumber")).toInt();
        rapport_.EchecScript(connue, valeur.isError() ? valeur.property(QStringLiteral("message")).toString()
                                                      : valeur.toString());
    }
    Conclut();
    moteur_ = nullptr;
}

void Langage::Prepare(QJSEngine& moteur)
{
    moteur_ = &moteur;
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
    QJSValue global = moteur.globalObject();
    global.setProperty(QStringLiteral("__langage"), moteur.newQObject(this));
    global.setProperty(QStringLiteral("__appels"), moteur.toScriptValue(QStringList(appels_.keys())));
    global.setProperty(QStringLiteral("programme"), session_.Monde.Programme());
    global.setProperty(QStringLiteral("utilisateur"), session_.Monde.Utilisateur());
    global.setProperty(QStringLiteral("extrait"), QStringLiteral(EXTRAIT));
    moteur.installExtensions(QJSEngine::ConsoleExtension);
    ChargeRessource(moteur, QStringLiteral("langue.js"));
    ChargeRessource(moteur, QStringLiteral("prelude.js"));
}

void Langage::Conclut()
{
    const QVariant texte = relais_.Lit([this]() -> QVariant {
        return session_.Boites.Ouverte() ? session_.Boites.Description()[QStringLiteral("texte")]
                                         : QVariant();
    });
    if (texte.isValid()) {
        rapport_.EchecScript(rapport_.Ligne(),
                             QStringLiteral("une boîte est restée ouverte : « %1 »").arg(texte.toString()));
    }
    const QString accident = relais_.Lit([this] { return session_.Accident(); }).toString();
    if (!accident.isEmpty()) {
        rapport_.EchecScript(rapport_.Ligne(),
                             QStringLiteral("fin inattendue du programme : %1").arg(accident));
    }
}

QJSValue Langage::appel(const QString& nom, const QString& pile, const QJSValue& valeurs)
{
    rapport_.Position(LigneDe(pile));
    const Definition definition = appels_.value(nom);
    // As every function of the script's language, a call passes over what it does not take: map(texte).
    const int compte = std::min(valeurs.property(QStringLiteral("length")).toInt(), definition.Maximum);
    QVariantList liste;
    for (int i = 0; i < compte; ++i) {
        const QJSValue valeur = valeurs.property(static_cast<quint32>(i));
        liste.append(valeur.isNull() ? Nul() : valeur.toVariant());
    }
    try {
        if (liste.size() < definition.Minimum) {
            throw Echec{QStringLiteral("%1 prend %2 à %3 valeurs, pas %4")
                            .arg(nom)
                            .arg(definition.Minimum)
                            .arg(definition.Maximum)
                            .arg(liste.size())};
        }
        return moteur_->toScriptValue(definition.Fait(Valeurs(liste)));
    } catch (const Echec& echec) {
        moteur_->throwError(QJSValue::GenericError, echec.Phrase);
    }
    return {};
}

void Langage::controle(bool reussi, const QString& texte, const QString& detail, const QString& pile)
{
    rapport_.Position(LigneDe(pile));
    if (reussi) {
        rapport_.Reussite(texte);
    } else {
        rapport_.EchecControle(texte, detail);
    }
}

void Langage::Ajoute(const QString& nom, int minimum, int maximum, Appel fait)
{
    appels_.insert(nom, {minimum, maximum, std::move(fait)});
}

void Langage::Attends(const std::function<QString()>& manque)
{
    QElapsedTimer duree;
    duree.start();
    for (;;) {
        const QString phrase = relais_.Lit([&] { return manque(); }).toString();
        if (phrase.isEmpty()) {
            return;
        }
        if (duree.hasExpired(attente_ * 1000)) {
            throw Echec{phrase};
        }
        QThread::msleep(kPas);
    }
}

void Langage::AttendsBoite()
{
    Attends([this] {
        if (!session_.Boites.Ouverte()) {
            session_.EnCours();
            return QStringLiteral("aucune boîte n'est ouverte");
        }
        return QString();
    });
}

void Langage::Touche(const QString& fenetre)
{
    relais_.Lit([this, &fenetre] {
        if (!TrouveFenetre(fenetre)) {
            session_.EnCours().Touche(fenetre);
        }
        return QVariant();
    });
}

void Langage::AttendsExistence(const QString& controle)
{
    Attends([this, &controle] {
        session_.EnCours();
        try {
            Trouve(controle);
            return QString();
        } catch (const Echec& echec) {
            return echec.Phrase;
        }
    });
}

void Langage::AttendsAccessible(const QString& controle, SurGris surGris)
{
    Attends([this, &controle, surGris] {
        session_.EnCours();
        if (session_.Boites.Ouverte()) {
            throw Echec{
                QStringLiteral("%1 : une boîte est ouverte : « %2 »")
                    .arg(controle, session_.Boites.Description()[QStringLiteral("texte")].toString())};
        }
        try {
            QString obstacle = Obstacle(controle);
            if (obstacle.isEmpty() && surGris == SurGris::Echoue) {
                obstacle = ObstacleGris(controle);
            }
            return obstacle.isEmpty() ? QString() : QStringLiteral("%1 : %2").arg(controle, obstacle);
        } catch (const Echec& echec) {
            return echec.Phrase;
        }
    });
}

/// The line of a call stack's innermost frame in the script, 0 without one.
int Langage::LigneDe(const QString& pile) const
{
    for (const QString& cadre : pile.split(QLatin1Char('\n'))) {
        const qsizetype place = cadre.indexOf(fichier_);
        if (place < 0) {
            continue;
        }
        // "function@file:path:line" in an error's stack, "function:line:column:file:path" in a trace
        const QString apres = cadre.mid(place + fichier_.size());
        if (apres.startsWith(QLatin1Char(':'))) {
            return apres.mid(1).toInt();
        }
        return cadre.section(QLatin1Char(':'), 1, 1).toInt();
    }
    return 0;
}

} // namespace scenario
