#include "bank/bibliotheque/Emplacement.h"

#include <QDir>
#include <QFileInfo>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace banque::bibliotheque {

namespace {

#ifdef Q_OS_WIN
HMODULE Module(DWORD maniere)
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | maniere,
                       reinterpret_cast<LPCWSTR>(&DossierDeLaBibliotheque), &module);
    return module;
}

QString Chemin()
{
    wchar_t chemin[32768];
    const DWORD longueur = GetModuleFileNameW(Module(GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT), chemin,
                                              sizeof chemin / sizeof *chemin);
    return QDir::fromNativeSeparators(QString::fromWCharArray(chemin, static_cast<int>(longueur)));
}
#else
QString Chemin()
{
    Dl_info infos;
    const bool connue = dladdr(reinterpret_cast<void*>(&DossierDeLaBibliotheque), &infos) != 0;
    return connue ? QFile::decodeName(infos.dli_fname) : QString();
}
#endif

} // namespace

QString DossierDeLaBibliotheque()
{
    return QFileInfo(Chemin()).absolutePath();
}

void RetiensLaBibliotheque()
{
#ifdef Q_OS_WIN
    Module(GET_MODULE_HANDLE_EX_FLAG_PIN);
#else
    dlopen(QFile::encodeName(Chemin()).constData(), RTLD_NOW | RTLD_NODELETE);
#endif
}

} // namespace banque::bibliotheque
