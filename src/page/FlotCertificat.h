#pragma once

#include "page/MotsPosologie.h"
#include "page/Surface.h"

#include <limits>

namespace page {

/// One line of a certificate's text: its words flow over as many lines of the sheet as they need. What the
/// line has collected is measured, never the pen's place, but beside an address: there the sheet's edge
/// counts too, past which nothing would be printed.
class FlotCertificat
{
public:
    /// The line's font, the width of the text's measure in millimetres, the address of the patient in hand.
    FlotCertificat(Surface& cible, const page::Police& police, double largeur, const QString& adresse);

    /// Places and prints a word, its macros replaced.
    void Ecrit(const Mot& mot);
    /// Ends the line: the next one begins `saut` millimetres and a blank line lower, below any address.
    void Termine(double saut);

private:
    bool Tient(const Mot& mot) const;
    void Place(const Mot& mot);
    void PasseALaLigne();
    void EcritAdresse(const QStringList& parties);
    void DescendAu(double y);

    Surface& cible_;
    page::Police police_;
    double largeur_;
    QString adresse_;
    QString ligne_;
    bool vide_ = true;
    bool apresAdresse_ = false; ///< an address of several lines stands on the pen's left
    double basAdresse_ = std::numeric_limits<double>::lowest();
};

} // namespace page
