#include "banque/VerifieFichier.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t taille)
{
    return fuzz::VerifieFichier<banque::Specialite>(octets, taille);
}
