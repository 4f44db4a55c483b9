// Loaded before the system's library into a program under test: kills it, as a power cut would, right before
// the change to the disk whose number stands in COUPURE.
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/types.h>

namespace {

void Compte()
{
    static const char* const texte = std::getenv("COUPURE");
    static long reste = texte == nullptr ? -1 : std::atol(texte);
    if (reste > 0 && --reste == 0) {
        raise(SIGKILL);
    }
}

template <typename F> F Suivante(const char* nom)
{
    return reinterpret_cast<F>(dlsym(RTLD_NEXT, nom));
}

int Ouvre(const char* nom, const char* chemin, int options, mode_t droits)
{
    if ((options & (O_CREAT | O_TRUNC)) != 0) {
        Compte();
    }
    return Suivante<int (*)(const char*, int, ...)>(nom)(chemin, options, droits);
}

} // namespace

extern "C" {

int rename(const char* de, const char* vers)
{
    Compte();
    return Suivante<int (*)(const char*, const char*)>("rename")(de, vers);
}

int renameat2(int a, const char* de, int b, const char* vers, unsigned options)
{
    Compte();
    return Suivante<int (*)(int, const char*, int, const char*, unsigned)>("renameat2")(a, de, b, vers,
                                                                                        options);
}

int unlink(const char* chemin)
{
    Compte();
    return Suivante<int (*)(const char*)>("unlink")(chemin);
}

int rmdir(const char* chemin)
{
    Compte();
    return Suivante<int (*)(const char*)>("rmdir")(chemin);
}

int remove(const char* chemin)
{
    Compte();
    return Suivante<int (*)(const char*)>("remove")(chemin);
}

int mkdir(const char* chemin, mode_t droits)
{
    Compte();
    return Suivante<int (*)(const char*, mode_t)>("mkdir")(chemin, droits);
}

int fsync(int fichier)
{
    Compte();
    return Suivante<int (*)(int)>("fsync")(fichier);
}

int open(const char* chemin, int options, ...)
{
    va_list suite;
    va_start(suite, options);
    const auto droits = static_cast<mode_t>(va_arg(suite, unsigned));
    va_end(suite);
    return Ouvre("open", chemin, options, droits);
}

int open64(const char* chemin, int options, ...)
{
    va_list suite;
    va_start(suite, options);
    const auto droits = static_cast<mode_t>(va_arg(suite, unsigned));
    va_end(suite);
    return Ouvre("open64", chemin, options, droits);
}
}
