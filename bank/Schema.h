#pragma once

#include <QStringList>

namespace banque {

/// In the head of every bank file: "SCBQ".
constexpr int kApplicationBanque = 0x53434251;
/// Grows with each change of the tables.
constexpr int kVersionBanque = 1;

/// The statements that make the empty tables of a bank.
const QStringList& Tables();

/// The statements that make its indexes, run when the tables are full.
const QStringList& Index();

} // namespace banque
