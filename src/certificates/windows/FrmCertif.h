#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>

namespace certificates {

/// The word processor of the certificates: templates, macros, shift, and the hand-over to the page. It is
/// modal, hidden and reused: what was typed stays in it.
class FrmCertif : public QDialog
{
    Q_OBJECT

public:
    FrmCertif(application::Contexte& contexte, application::Fenetres& fenetres);

    /// Opens modally as the window was left; back when it hides. `ModeApercu` is 1 after `CmdEcrire`, 2 after
    /// `CmdAnn`.
    void Ouvre();
    /// Opens the same way on the certificate of the page: the row of `IndexCertif`, `CertifALD` and the text
    /// of "Tmp.txt".
    void Reprend();

private:
    [[maybe_unused]] application::Contexte& contexte_;
};

} // namespace certificates
