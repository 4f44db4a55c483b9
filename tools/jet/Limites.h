#pragma once

namespace jet {

/// Holds this process to the memory and the processor time that a sound file of that size needs by far. A
/// damaged file may ask the library for more: the process ends then, and its caller sees that.
void PoseLimites(const char* fichier);

/// No environment variable of the account decides how texts are read.
void OublieReglages();

} // namespace jet
