#pragma once

#include "drugbank/InterfaceBanque.h"

#include <QFile>
#include <QJsonArray>

namespace essai {

/// What a library of the tests was called with, in a file that outlives it: one object a line, `{nom,
/// arguments}`, with `poignee` for a record or list that was handed out and `faute` for one released that was
/// not out.
class Journal
{
public:
    explicit Journal(const QString& chemin);

    void Note(const char* nom, const QJsonArray& arguments, drugbank::Poignee poignee = 0,
              bool faute = false);
    /// The lines that stood in the file when it was opened.
    int Lignes() const { return lignes_; }

private:
    QFile fichier_;
    int lignes_ = 0;
};

} // namespace essai
