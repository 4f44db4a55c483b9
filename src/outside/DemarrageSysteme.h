#pragma once

#include <QString>

namespace outside {

/// Start of the program when the user logs on.
class DemarrageSysteme
{
public:
    virtual ~DemarrageSysteme() = default;

    /// Registers the command under the name "Scriptelle". A failure is not reported.
    virtual void Active(const QString& programme) = 0;
    virtual void Desactive() = 0;
};

} // namespace outside
