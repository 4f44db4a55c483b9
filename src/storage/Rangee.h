#pragma once

#include <QString>

class QSqlQuery;

namespace storage {

/// The current row of a forward reading. Fields by position from 0; it lives as long as the call.
class Rangee
{
public:
    explicit Rangee(const QSqlQuery& requete) : requete_(requete) {}

    bool EstNull(int position) const;
    /// Empty for null.
    QString Texte(int position) const;
    /// 0 for null and for what is no number.
    qint64 Entier(int position) const;
    double Reel(int position) const;

private:
    const QSqlQuery& requete_;
};

} // namespace storage
