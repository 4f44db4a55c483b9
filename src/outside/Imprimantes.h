#pragma once

#include "page/Dessin.h"

#include <QString>
#include <QStringList>

namespace outside {

/// One print job: its sheets in order, A4 portrait.
struct Travail
{
    QString Titre;
    QList<page::Dessin> Pages;
    /// Where "Fichier PDF" writes the job; the directory exists.
    QString CheminPdf;
};

/// The name of the printer that writes a PDF file and opens it. It is always in the list.
inline QString NomFichierPdf()
{
    return QStringLiteral("Fichier PDF");
}

class Imprimantes
{
public:
    virtual ~Imprimantes() = default;

    /// The system's printers by device name, then "Fichier PDF".
    virtual QStringList Noms() const = 0;
    /// The system's default printer; "Fichier PDF" when the system has none.
    virtual QString ParDefaut() const = 0;
    /// Sends a job to a printer of `Noms`. Throws `Erreur` when it cannot be printed.
    virtual void Imprime(const QString& nom, const Travail& travail) = 0;
    /// Tells that a job was painted and thrown away; only the tests keep it.
    virtual void Abandonne(const Travail& travail) = 0;
};

} // namespace outside
