#pragma once

#include "drugbank/BanqueDeTest.h"
#include "scenario/Controles.h"
#include "scenario/Rapport.h"
#include "scenario/Relais.h"
#include "scenario/Session.h"

#include <QHash>
#include <QJSEngine>
#include <QJSValue>
#include <functional>

namespace scenario {

/// The values that a script gave to a call.
class Valeurs
{
public:
    explicit Valeurs(QVariantList valeurs) : valeurs_(std::move(valeurs)) {}

    /// True for a value that is not given, null or undefined.
    bool Absente(int i) const;
    /// The value as it is; invalid when it is absent.
    QVariant Brute(int i) const { return valeurs_.value(i); }
    /// Each throws `Echec` when the value is of another kind.
    QString Texte(int i) const;
    /// A path, whose separators may be written as backslashes too.
    QString Chemin(int i) const;
    int Entier(int i) const;
    QVariantList Liste(int i) const;
    /// True and 1, false and 0.
    bool Booleen(int i) const;

private:
    QVariantList valeurs_;
};

/// The calls of the language. It lives in the script's thread.
class Langage : public QObject
{
    Q_OBJECT

public:
    using Appel = std::function<QVariant(const Valeurs&)>;

    /// `attente`: seconds until what does not appear is a failure.
    Langage(Session& session, Relais& relais, Rapport& rapport, int attente);

    /// Plays a script; every failure goes to the report.
    void Joue(const QString& chemin);

    /// Called by the script side: `pile` is the script's call stack, `valeurs` an array.
    Q_INVOKABLE QJSValue appel(const QString& nom, const QString& pile, const QJSValue& valeurs);
    /// A check's outcome.
    Q_INVOKABLE void controle(bool reussi, const QString& texte, const QString& detail, const QString& pile);

private:
    void Ajoute(const QString& nom, int minimum, int maximum, Appel appel);
    void AjouteMonde();
    void AjouteFichiers();
    void AjouteTables();
    void AjouteImprimes();
    void AjouteFin();
    void AjouteBoites();
    void AjouteGestes();
    void AjouteClavier();
    void AjouteFenetres();
    void AjouteLectures();
    void AjouteEtats();
    void AjouteBanque();

    /// What an action does on a greyed control: a click does nothing there, as for a doctor.
    enum class SurGris { Echoue, Ignore };

    /// Registers an action on the control that the first value names.
    void AjouteGeste(const QString& nom, int minimum, int maximum,
                     std::function<void(const Controle&, const Valeurs&)> geste,
                     SurGris surGris = SurGris::Echoue);
    /// Registers a reading of the control that the first value names.
    void AjouteLecture(const QString& nom, int maximum,
                       std::function<QVariant(const Controle&, const Valeurs&)> lecture);
    /// Waits until a condition gives an empty text; throws its last text as `Echec` when it never does.
    void Attends(const std::function<QString()>& manque);
    void AttendsBoite();
    void AttendsExistence(const QString& controle);
    void Touche(const QString& fenetre);
    void AttendsAccessible(const QString& controle, SurGris surGris);
    void PoseBanque();
    QString CheminBase(const QString& nom);
    int LigneDe(const QString& pile) const;
    void Prepare(QJSEngine& moteur);
    void Conclut();

    struct Definition
    {
        int Minimum = 0;
        int Maximum = 0;
        Appel Fait;
    };

    Session& session_;
    Relais& relais_;
    Rapport& rapport_;
    int attente_;
    QJSEngine* moteur_ = nullptr;
    QString fichier_;
    support::BanqueDeTest banque_;
    QJsonObject description_; // of the bank
    QHash<QString, Definition> appels_;
};

} // namespace scenario
