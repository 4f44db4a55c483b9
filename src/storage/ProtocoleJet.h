#pragma once

/// How the conversion and its reader, `scriptelle-jet`, speak with each other.
///
///     scriptelle-jet FILE DRAFT medoc|ordo
///
/// The reader opens the Jet file for reading only, makes the draft, which must not exist, and fills it. On
/// its standard output it says, one line each, its fields parted by tabs:
///
///     table   NAME  ROWS      a table of ours begins; the rows that the file declares
///     lignes  ROWS            so many of them are written
///     fin                     everything is written and the draft is closed
///
/// A draft without the last line is worth nothing.
namespace storage::jet {

inline constexpr char kMedoc[] = "medoc";
inline constexpr char kOrdo[] = "ordo";

inline constexpr char kTable[] = "table";
inline constexpr char kLignes[] = "lignes";
inline constexpr char kFin[] = "fin";

/// The reader's exit codes besides 0.
enum Code {
    kUsage = 2,
    kIllisible = 3,    ///< the Jet file cannot be opened
    kEndommage = 4,    ///< it holds what no sound file holds
    kDisquePlein = 5,  ///< of the draft
    kLectureSeule = 6, ///< the draft cannot be made
    kDisqueEnPanne = 7 ///< the draft cannot be written, or the Jet file not read to its end
};

} // namespace storage::jet
