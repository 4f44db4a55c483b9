#pragma once

#include "page/Dessin.h"

#include <QFrame>

class QPushButton;

namespace page {
class VueAjustee;
}

namespace startup {

/// The offer of a first letterhead on the main window's face: its picture, and two answers.
class CarteEntete : public QFrame
{
    Q_OBJECT

public:
    explicit CarteEntete(QWidget* parent);

    void Montre(const page::Dessin& dessin);

    QPushButton* CmdUtiliseEntete;
    QPushButton* CmdLaisseEntete;

private:
    page::VueAjustee* PctPropose;
};

} // namespace startup
