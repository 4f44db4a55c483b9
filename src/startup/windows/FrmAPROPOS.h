#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>

class QPushButton;

namespace startup {

/// The about box: the version, the way to the help document and to a message.
class FrmAPROPOS : public QDialog
{
    Q_OBJECT

public:
    FrmAPROPOS(application::Contexte& contexte, application::Fenetres& fenetres);

private:
    QPushButton* Lien(const QString& nomObjet, const QString& texte, void (*ouvre)(application::Contexte&));

    application::Contexte& contexte_;
};

} // namespace startup
