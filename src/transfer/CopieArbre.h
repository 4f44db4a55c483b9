#pragma once

#include <QString>
#include <functional>

namespace transfer {

/// Why two directories cannot be source and destination of one transfer.
enum class Voisinage {
    Separes,
    Memes,
    Imbriques ///< one inside the other
};

/// What stands between both, links followed.
Voisinage Compare(const QString& source, const QString& destination);

/// Called before each file with its number, from 0, and their number in all.
using Avancement = std::function<void(int fichier, int nombre)>;

/// Copies a data tree over another one. Files of the destination with other names stay. Databases are copied
/// as they stand between two writings; safety copies, locks and drafts stay where they are. Each copy is
/// read back and compared. Throws `Erreur` with the file that failed: the destination is as it was then.
void CopieArbre(const QString& source, const QString& destination, const Avancement& avancement = {});

/// True while the files of a transfer take their place in a tree or in a directory of it, or a cut one has
/// left some.
bool TransfertEnAttente(const QString& arbre);

/// Finishes in a tree, and in the directories of it, what a cut transfer has left: the new tree when its copy
/// was whole, else the former one. False when nothing had been whole. Throws `Erreur`, also while another
/// program is at it.
bool FinitTransfert(const QString& arbre);

} // namespace transfer
