#pragma once

namespace storage {

/// The two kinds of database file: the shared "Medoc.mdb" and a doctor's "Ordo.mdb".
enum class GenreBase { Medoc, Ordo };

} // namespace storage
