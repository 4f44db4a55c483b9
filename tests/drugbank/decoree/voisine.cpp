#include <cstring>

extern "C" __declspec(dllexport) int LongueurVoisine(const char* texte)
{
    return static_cast<int>(std::strlen(texte));
}
