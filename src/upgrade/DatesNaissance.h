#pragma once

#include "upgrade/Recopie.h"

namespace upgrade {

/// Whether there is a prescription of one patient without a birth date among the rows of `de`, a table and
/// its alias "s" as a statement names them; `nom` and `date` are what the rows give.
bool DatesARepare(Recopie& recopie, const QString& de, const QString& nom, const QString& date);

/// Finds, for each name that the selects give, the birth date that it is to have: that of the last patient of
/// the new `Patients`, in stored order, whose name it contains. They stand in the table "Dates" of the
/// connection then, for `DateRepare`.
void PrepareDates(Recopie& recopie, const QStringList& selectsDesNoms);

/// The repaired date of that name, or the date where no patient's name is contained.
QString DateRepare(const QString& nom, const QString& date);

} // namespace upgrade
