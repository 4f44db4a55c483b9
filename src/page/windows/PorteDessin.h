#pragma once

#include "page/Dessin.h"

namespace page {

/// A widget that shows a `Dessin`: a `Feuille`, or a window with a painted face.
class PorteDessin
{
public:
    virtual ~PorteDessin() = default;

    /// What is shown now. It lives as long as the widget and changes with it.
    virtual const Dessin& DessinMontre() const = 0;
};

} // namespace page
