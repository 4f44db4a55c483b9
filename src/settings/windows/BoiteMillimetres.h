#pragma once

#include "settings/windows/ChampMesure.h"

namespace settings {

/// A box for a number of millimetres on the page, selected whole when it gets the focus.
class BoiteMillimetres : public ChampMesure
{
    Q_OBJECT

public:
    BoiteMillimetres(const char* nom, QWidget* parent);
};

} // namespace settings
