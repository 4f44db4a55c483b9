#pragma once

#include <QString>
#include <array>

namespace certificates {

/// The macros in the order of `Lblmacro`; the last one is inserted as blanks.
constexpr std::array<const char16_t*, 7> kMacros = {u"<N>",  u"<DN>", u"<DJ>",  u"<AD>",
                                                    u"<DR>", u"<EL>", u"<NBsp>"};
constexpr int kNBsp = 6;       ///< place of "<NBsp>"
constexpr int kNbLargeurs = 4; ///< choices of its width
constexpr int kLargeurParDefaut = 1;

/// The blanks of "<NBsp>" for the option of that rank, from 0.
constexpr int LargeurNBsp(int option)
{
    return (option + 1) * 25;
}

/// What a click on `Lblmacro(macro)` inserts: one blank and the macro, or `largeur` blanks alone.
inline QString TexteMacro(int macro, int largeur)
{
    return macro == kNBsp ? QString(largeur, u' ')
                          : u' ' + QString::fromUtf16(kMacros[static_cast<size_t>(macro)]);
}

} // namespace certificates
