#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

/// How the values of a bank read on the page of a medication.
namespace banque::bibliotheque::fiche {

/// Text as HTML: nothing in it is markup.
QString Sur(const QString& texte);

/// The same, but for "<br>", by which the public texts part their lines.
QString AvecSautsDeLigne(const QString& texte);

/// "Forme : comprimé" as HTML; empty without a value.
QString Champ(const QString& nom, const QString& valeur);

/// The texts that are not empty, with the separator between.
QString Joint(const QStringList& textes, const QString& separateur);

/// `devant` and a link; empty for what is no address of the web.
QString Lien(const QString& adresse, const QString& texte, const QString& devant);

/// "19/05/2026" of "2026-05-19"; empty when it is none.
QString Date(const QString& iso);

/// "1 545,27 €"; "sans prix public" without a price.
QString Prix(const QVariant& prix);

/// "65 %"; "non remboursé" without a rate.
QString Taux(const QVariant& taux);

/// "générique" and its like, of a member's number in its group.
QString TypeGenerique(int type);

/// True for what binds the one who prescribes or dispenses: narcotics, hospital, specialists, durations.
bool ConditionForte(const QString& condition);
/// True for narcotics and what the hospital alone may use.
bool ConditionMajeure(const QString& condition);

/// The page of a medication in the public base.
QString FicheOfficielle(qint64 cis);

struct EtatSpecialite
{
    QString Statut;
    bool Commercialisee = true;
    QString Alerte;
    bool Surveillance = false;
    bool Homeopathie = false;
};

/// What stands out of the medication's state, as HTML.
QStringList AlertesDeSpecialite(const EtatSpecialite& etat);

} // namespace banque::bibliotheque::fiche
