#pragma once

#include <QString>

namespace storage {

/// Where a conversion tells how far it is. Events are delivered while it runs: a window goes on painting.
class SuiviConversion
{
public:
    virtual ~SuiviConversion() = default;

    /// A conversion of that file begins; `Termine` follows in every case.
    virtual void Commence(const QString& chemin) = 0;
    /// Another station converts the same file: this one waits for it.
    virtual void Attend() = 0;
    /// Rows of that table read so far, of those that the file declares.
    virtual void Avance(const QString& table, qint64 lignes, qint64 sur) = 0;
    virtual void Termine() = 0;
    /// True when the doctor gives the conversion up.
    virtual bool Abandonne() const = 0;
};

} // namespace storage
