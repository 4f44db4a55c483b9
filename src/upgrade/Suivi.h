#pragma once

#include <QString>
#include <algorithm>
#include <functional>

namespace upgrade {

/// Who follows an upgrade while it works. A missing function is passed over.
struct Suivi
{
    /// Between two statements: how much of the whole, in thousandths, and what is being done.
    std::function<void(int milliemes, const QString& mot)> Montre;
    /// Before each change of a file and each statement, for tests only: one that does not come back, or
    /// throws, is the power cut at that point.
    std::function<void()> Pas;

    QString Mot;
    qint64 Total = 0; ///< rows to be copied
    qint64 Faites = 0;

    /// So many rows more are copied.
    void Avance(qint64 lignes)
    {
        Faites = std::min(Faites + lignes, Total);
        if (Montre) {
            constexpr qint64 kTout = 1000;
            Montre(static_cast<int>(Total > 0 ? kTout * Faites / Total : 0), Mot);
        }
    }
    void Coupe() const
    {
        if (Pas) {
            Pas();
        }
    }
};

} // namespace upgrade
