#pragma once

#include <QByteArray>
#include <QString>

namespace scenario {

// The script's files, apart from the program's own ones. Each throws `Echec` with the path.

QByteArray Lit(const QString& chemin);
/// The folders above it are made when they are missing.
void Ecrit(const QString& chemin, const QByteArray& contenu);
/// A file, or a folder with all below it, over what stands at the destination; a file may go into a folder.
void Copie(const QString& source, const QString& destination);
/// A file, or a folder with all below it. Nothing there is no failure.
void Efface(const QString& chemin);

} // namespace scenario
