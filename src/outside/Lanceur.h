#pragma once

#include <QString>
#include <QStringList>

namespace outside {

/// Starts other programs and opens documents with the system's viewer.
class Lanceur
{
public:
    virtual ~Lanceur() = default;

    /// Starts a program on its own. False when it could not be started.
    virtual bool Lance(const QString& programme, const QStringList& arguments = {}) = 0;
    /// Opens a file or an address. False when nothing opens it.
    virtual bool Ouvre(const QString& documentOuAdresse) = 0;
};

} // namespace outside
