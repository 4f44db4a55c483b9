#include "scenario/Tables.h"

#include "scenario/Conversions.h"
#include "scenario/Echec.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

namespace scenario {

namespace {

/// The driver stores a null text as null: the script's empty text is one.
QVariant Liee(const QVariant& valeur)
{
    if (EstNul(valeur)) {
        return {};
    }
    const bool texteVide = valeur.typeId() == QMetaType::QString && valeur.toString().isEmpty();
    return texteVide ? QVariant(QStringLiteral("")) : valeur;
}

/// One connection for one call.
class Connexion
{
public:
    Connexion(const QString& chemin, const QString& options)
        : base_(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("scenario")))
    {
        base_.setDatabaseName(chemin);
        base_.setConnectOptions(options);
        if (!QFileInfo::exists(chemin) || !base_.open()) {
            Ferme();
            throw Echec{QStringLiteral("la base « %1 » ne s'ouvre pas").arg(chemin)};
        }
    }
    Connexion(const Connexion&) = delete;
    Connexion& operator=(const Connexion&) = delete;
    ~Connexion() { Ferme(); }

    QSqlQuery Lance(const QString& instruction, const QVariantList& valeurs = {})
    {
        QSqlQuery requete(base_);
        requete.prepare(instruction);
        for (const QVariant& valeur : valeurs) {
            requete.addBindValue(Liee(valeur));
        }
        if (!requete.exec()) {
            throw Echec{QStringLiteral("%1 : %2").arg(instruction, requete.lastError().text())};
        }
        return requete;
    }

    /// The table's name, quoted; throws when the base does not have it.
    QString Nom(const QString& table) const
    {
        if (!base_.tables().contains(table)) {
            throw Echec{QStringLiteral("la base n'a pas de table « %1 »").arg(table)};
        }
        return QLatin1Char('"') + table + QLatin1Char('"');
    }

    int Colonnes(const QString& table) const { return base_.record(table).count(); }

private:
    void Ferme()
    {
        base_ = QSqlDatabase();
        QSqlDatabase::removeDatabase(QStringLiteral("scenario"));
    }

    QSqlDatabase base_;
};

} // namespace

QVariantList LitTable(const QString& chemin, const QString& table)
{
    Connexion connexion(chemin, QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=5000"));
    QSqlQuery requete =
        connexion.Lance(QStringLiteral("SELECT * FROM %1 ORDER BY rowid").arg(connexion.Nom(table)));
    QVariantList rangees;
    while (requete.next()) {
        QVariantList rangee;
        for (int i = 0; i < requete.record().count(); ++i) {
            rangee.append(requete.isNull(i) ? Nul() : requete.value(i));
        }
        rangees.append(QVariant(rangee));
    }
    return rangees;
}

void AjouteRangee(const QString& chemin, const QString& table, const QVariantList& valeurs)
{
    Connexion connexion(chemin, QStringLiteral("QSQLITE_BUSY_TIMEOUT=5000"));
    const QString nom = connexion.Nom(table);
    const int colonnes = connexion.Colonnes(table);
    if (valeurs.size() > colonnes) {
        throw Echec{QStringLiteral("la table « %1 » a %2 colonnes, pas %3")
                        .arg(table)
                        .arg(colonnes)
                        .arg(valeurs.size())};
    }
    const QString points = QStringList(colonnes, QStringLiteral("?")).join(QLatin1Char(','));
    QVariantList rangee = valeurs;
    rangee.resize(colonnes);
    connexion.Lance(QStringLiteral("INSERT INTO %1 VALUES (%2)").arg(nom, points), rangee);
}

void VideTable(const QString& chemin, const QString& table)
{
    Connexion connexion(chemin, QStringLiteral("QSQLITE_BUSY_TIMEOUT=5000"));
    connexion.Lance(QStringLiteral("DELETE FROM %1").arg(connexion.Nom(table)));
}

} // namespace scenario
