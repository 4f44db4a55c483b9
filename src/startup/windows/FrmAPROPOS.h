#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>

class QPushButton;

namespace startup {

/// The about box: version, web address and mail address.
class FrmAPROPOS : public QDialog
{
    Q_OBJECT

public:
    FrmAPROPOS(application::Contexte& contexte, application::Fenetres& fenetres);

private:
    QPushButton* Lien(const QString& nomObjet, const QString& texte, const QString& adresse);

    application::Contexte& contexte_;
};

} // namespace startup
