#pragma once

#include "page/Dessin.h"

class QPainter;
class QSize;

namespace startup {

/// The graded ground of a window, from top to bottom.
class FondPeint
{
public:
    /// `marge`: the pixels left out at both ends.
    FondPeint(page::Couleur haut, page::Couleur bas, int marge) : haut_(haut), bas_(bas), marge_(marge) {}

    /// Paints the ground for a window of that size.
    void Ajuste(const QSize& taille);
    void Montre(QPainter& peintre) const;
    const page::Dessin& Dessin() const { return dessin_; }

private:
    page::Couleur haut_;
    page::Couleur bas_;
    int marge_;
    page::Dessin dessin_;
};

/// Fills a window with both colours, so that the ends that a graded ground leaves out go on in them.
void PeintBouts(QPainter& peintre, page::Couleur haut, page::Couleur bas);

} // namespace startup
