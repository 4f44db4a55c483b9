#pragma once

#include "Octets.h"

#include <string>

#include <glib.h>

namespace jet {

/// Turns stored texts into UTF-8: Jet 4 keeps UTF-16, with a short form for the first 255 characters; Jet 3
/// keeps the characters of a code page.
class Textes
{
public:
    /// `page` is the code page of a Jet 3 file, 0 for Jet 4.
    explicit Textes(int page);
    ~Textes();
    Textes(const Textes&) = delete;
    Textes& operator=(const Textes&) = delete;

    void Ajoute(std::string& utf8, Octets texte) const;

private:
    void AjoutePage(std::string& utf8, Octets texte) const;

    GIConv conversion_;
};

} // namespace jet
