#pragma once

#include "application/Contexte.h"
#include "certificates/Certificat.h"

#include <QStringList>
#include <optional>

namespace page {
struct Police;
}

/// What the commands of the editor do; `texte` is that of `TxtCert`, with CR LF line ends.
namespace certificates {

/// `ChkALD`: the text that the click leaves, two empty zones or nothing. `CertifALD` follows, the shift is 0.
QString CocheALD(Certificat& certificat, bool coche);

/// `CmdDecD`: the text one step to the right; it passes through "Tmp.txt". Throws `Erreur`; nothing is
/// changed then.
QString DecaleTexteADroite(application::Contexte& contexte, const QString& texte);
/// `CmdDecG`: the text one step to the left; nothing when a line has no room, and nothing is changed then.
/// Throws `Erreur`.
std::optional<QString> DecaleTexteAGauche(application::Contexte& contexte, const QString& texte);

/// `mnuEnrSous`: asks for a name and writes text and record. False when nothing was written, after a message
/// unless the doctor gave up. Throws `Erreur`.
bool EnregistreSous(application::Contexte& contexte, const QString& texte);

/// `CmdSupp`: deletes the template after a question; an empty name is told of. True when it is deleted.
/// Throws `Erreur`.
bool SupprimeModele(application::Contexte& contexte, const QString& nom);

/// `CmdPolice`: asks for the font and makes it the one of the certificates and of `TxtCert`, in the doctor's
/// database too. False when nothing changed. Throws `Erreur`.
bool ChoisitPolice(application::Contexte& contexte);

/// The text of `LblF`.
QString LibellePolice(const page::Police& police);

/// `CmdEcrire`: writes the text to "Tmp.txt" and paints the certificate on the preview; `rang` is its row in
/// the list. False without a doctor, after the message. Throws `Erreur`.
bool EcritSurLaPage(application::Contexte& contexte, const QString& texte, int rang);

/// `CmdAnn`: the preview is cleared, the medications come next.
void QuitteCertificats(application::Contexte& contexte);

/// The text of "Tmp.txt"; nothing when it is gone. Throws `Erreur`.
std::optional<QString> TexteDeLaPage(const application::Contexte& contexte);

/// Keeps `IndexCertif` on its template when the list is made anew; -1 when the template is gone.
void SuitLaListe(Certificat& certificat, const QStringList& avant, const QStringList& apres);

} // namespace certificates
