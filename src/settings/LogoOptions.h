#pragma once

#include "application/Contexte.h"
#include "settings/Reglages.h"

#include <QImage>
#include <QString>

namespace settings {

/// `CmdChemin`: asks for a picture and copies it into the doctor's own "Logo"; `FichierLogo` is that copy
/// then. A picture that bore the name there is kept beside it until the dialogue ends. False when nothing
/// changed: without a doctor, on Cancel, for what is no picture or out of all measure, and when the copy
/// fails, each but Cancel with its message.
bool ChoisitLogo(application::Contexte& contexte);

/// The dialogue ends without `CmdOK`: the pictures written over come back. Throws `Erreur`.
void RendLogos(Reglages& reglages);
/// `CmdOK`: the pictures written over are no longer wanted.
void GardeLogos(Reglages& reglages);

/// The picture of `FichierLogo`, null when there is none; `RatioLogo` follows it.
QImage AjusteLogo(application::Contexte& contexte);

/// The width, in whole millimetres, that goes with a height as typed; empty for an empty one. Without
/// proportion the former width stays.
QString LargeurPour(const QString& hauteur, double ratio, const QString& largeur);
/// The height that goes with a width as typed, in the same way.
QString HauteurPour(const QString& largeur, double ratio, const QString& hauteur);

} // namespace settings
