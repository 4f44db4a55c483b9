#pragma once

#include <QSqlQuery>
#include <QString>
#include <QVariant>

namespace storage {

/// The current row of a forward reading. Fields by position from 0; it lives as long as the call.
class Rangee
{
public:
    explicit Rangee(const QSqlQuery& requete) : requete_(requete) {}

    bool EstNull(int position) const { return requete_.isNull(position); }
    /// Empty for null.
    QString Texte(int position) const { return requete_.value(position).value<QString>(); }
    /// 0 for null and for what is no number.
    qint64 Entier(int position) const { return requete_.value(position).value<qint64>(); }
    double Reel(int position) const { return requete_.value(position).value<double>(); }

private:
    const QSqlQuery& requete_;
};

} // namespace storage
