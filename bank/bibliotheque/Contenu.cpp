#include "bank/bibliotheque/Contenu.h"

#include "bank/Schema.h"
#include "bank/Selection.h"
#include "bank/bibliotheque/Statut.h"

#include <QFileInfo>

namespace banque::bibliotheque {

namespace {

void ExigeDContinuer(const std::atomic<bool>& arret)
{
    if (arret) {
        throw Refus{kEchec};
    }
}

/// Table by table, so that an end of the program need not wait for all of them.
const QSqlDatabase& ExigeIntacte(const QSqlDatabase& base, const std::atomic<bool>& arret)
{
    ExigeUneBanque(base);
    QStringList tables;
    Selection(base, QStringLiteral("select name from sqlite_master where type = 'table'"))
        .PourChaque([&](const QSqlQuery& table) { tables.append(table.value(0).toString()); });
    Selection controle(base, QStringLiteral("select quick_check from pragma_quick_check(?)"));
    for (const QString& table : std::as_const(tables)) {
        ExigeDContinuer(arret);
        if (controle.Valeur({table}).toString() != QLatin1String("ok")) {
            throw Refus{kFichierIllisible};
        }
    }
    return base;
}

} // namespace

void ExigeUneBanque(const QSqlDatabase& base)
{
    if (!base.isOpen()) {
        throw Refus{QFileInfo::exists(base.databaseName()) ? kFichierIllisible : kFichierAbsent};
    }
    if (Selection(base, QStringLiteral("pragma application_id")).Valeur().toInt() != kApplicationBanque) {
        throw Refus{kFichierIllisible};
    }
    if (Selection(base, QStringLiteral("pragma user_version")).Valeur().toInt() != kVersionBanque) {
        throw Refus{kAutreVersion};
    }
}

QDate Expiration(const QSqlDatabase& base)
{
    Selection date(base, QStringLiteral("select valeur from information where cle = 'expiration'"));
    return QDate::fromString(date.Valeur().toString(), Qt::ISODate);
}

Contenu::Contenu(const QSqlDatabase& base, const std::atomic<bool>& arret)
    : Recherche(ExigeIntacte(base, arret)), Interactions(banque::Interactions::DepuisBase(base))
{
    ExigeDContinuer(arret);
    Selection(base, QStringLiteral("select cle, valeur from information"))
        .PourChaque([this](const QSqlQuery& information) {
            informations_.insert(information.value(0).toString(), information.value(1).toString());
        });
}

} // namespace banque::bibliotheque
