#pragma once

namespace storage {

class Base;

/// Brings an open file of an older layout to the current one, in one transaction: tables and columns that it
/// lacks are added, empty, at their positions; every value keeps its place. Columns that the current layout
/// does not know stay in a table "NAME (ancien)". Throws `Erreur`; the file is as it was then.
void CompleteDisposition(Base& base);

} // namespace storage
