#pragma once

#include <QSqlDatabase>
#include <QString>

namespace banque::bibliotheque {

/// The page of a medication, whole and by itself, for a browser, a text view and paper: no script, nothing
/// fetched. Empty when the bank does not know it. Throws `common::Erreur` when it cannot be read.
QString FicheHtml(const QSqlDatabase& base, qint64 cis);

} // namespace banque::bibliotheque
