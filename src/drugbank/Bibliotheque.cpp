#include "drugbank/Bibliotheque.h"

#include "drugbank/NomsExportes.h"

#include <QDir>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace drugbank {

namespace {

#ifdef Q_OS_WIN
/// Loads a library together with those beside it, which QLibrary does not look for. What QLibrary binds as
/// long as this lives is the same module.
class AvecVoisines
{
public:
    explicit AvecVoisines(const QString& chemin)
    {
        if (!QDir::isAbsolutePath(chemin)) {
            return; // the search beside the library wants a whole path
        }
        DWORD avant = 0; // no box of the system about a library that does not load
        SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &avant);
        module_ = LoadLibraryExW(reinterpret_cast<LPCWSTR>(QDir::toNativeSeparators(chemin).utf16()), nullptr,
                                 LOAD_WITH_ALTERED_SEARCH_PATH);
        SetThreadErrorMode(avant, nullptr);
    }
    ~AvecVoisines()
    {
        if (module_) {
            FreeLibrary(module_);
        }
    }
    AvecVoisines(const AvecVoisines&) = delete;
    AvecVoisines& operator=(const AvecVoisines&) = delete;

private:
    HMODULE module_ = nullptr;
};
#endif

} // namespace

Bibliotheque::Bibliotheque(const QString& nom) : bibliotheque_(nom)
{
#ifdef Q_OS_WIN
    const AvecVoisines voisines(nom);
#endif
    bibliotheque_.load();
}

Bibliotheque::~Bibliotheque()
{
    if (bibliotheque_.isLoaded() && !gardee_) {
        bibliotheque_.unload();
    }
}

QFunctionPointer Bibliotheque::Adresse(const char* nom, int octets)
{
    for (const QByteArray& exporte : NomsExportes(nom, octets)) {
        if (const QFunctionPointer adresse = bibliotheque_.resolve(exporte.constData())) {
            return adresse;
        }
    }
    return nullptr;
}

} // namespace drugbank
