#include "bank/InformationBanque.h"

#include "bank/Schema.h"
#include "common/Fichiers.h"

#include <QHash>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

#include <atomic>

namespace banque {

namespace {

/// A connection to a file that is only read, removed with this object.
class LectureBanque
{
public:
    explicit LectureBanque(const QString& chemin)
        : base_(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), NouveauNom()))
    {
        base_.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        base_.setDatabaseName(chemin);
        base_.open();
    }
    ~LectureBanque()
    {
        const QString nom = base_.connectionName();
        base_ = QSqlDatabase();
        QSqlDatabase::removeDatabase(nom);
    }
    LectureBanque(const LectureBanque&) = delete;
    LectureBanque& operator=(const LectureBanque&) = delete;

    /// The first column of the first row; invalid when the statement fails.
    QVariant Valeur(const QString& instruction) const
    {
        QSqlQuery requete(base_);
        return requete.exec(instruction) && requete.next() ? requete.value(0) : QVariant();
    }

    QHash<QString, QString> Informations() const
    {
        QHash<QString, QString> informations;
        QSqlQuery requete(base_);
        requete.exec(QStringLiteral("select cle, valeur from information"));
        while (requete.next()) {
            informations.insert(requete.value(0).toString(), requete.value(1).toString());
        }
        return informations;
    }

private:
    static QString NouveauNom()
    {
        static std::atomic<int> numero = 0;
        return QStringLiteral("information-banque-%1").arg(++numero);
    }

    QSqlDatabase base_;
};

QDate Jour(const QString& texte)
{
    return QDate::fromString(texte, Qt::ISODate);
}

} // namespace

std::optional<InformationBanque> LitInformation(const QString& chemin)
{
    if (!common::FichierExiste(chemin)) {
        return std::nullopt;
    }
    const LectureBanque lecture(chemin);
    if (lecture.Valeur(QStringLiteral("pragma application_id")).toInt() != kApplicationBanque ||
        lecture.Valeur(QStringLiteral("pragma user_version")).toInt() != kVersionBanque) {
        return std::nullopt;
    }
    const QHash<QString, QString> informations = lecture.Informations();
    const QVariant specialites = lecture.Valeur(QStringLiteral("select count(*) from specialites"));
    const QVariant interactions = lecture.Valeur(QStringLiteral("select count(*) from interactions"));
    if (informations.isEmpty() || !specialites.isValid() || !interactions.isValid()) {
        return std::nullopt;
    }
    return InformationBanque{.DateDonnees = Jour(informations.value(QStringLiteral("date_donnees"))),
                             .Expiration = Jour(informations.value(QStringLiteral("expiration"))),
                             .Nature = informations.value(QStringLiteral("nature")),
                             .Specialites = specialites.toInt(),
                             .Interactions = interactions.toInt()};
}

} // namespace banque
