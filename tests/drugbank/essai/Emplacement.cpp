#include "essai/Emplacement.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>

#ifdef Q_OS_WIN
#include <array>
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace essai {

namespace {

QString CheminDeLaBibliotheque()
{
#ifdef Q_OS_WIN
    HMODULE module = nullptr;
    std::array<wchar_t, 1024> chemin = {};
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&LitDescription), &module);
    const DWORD longueur = GetModuleFileNameW(module, chemin.data(), static_cast<DWORD>(chemin.size()));
    return QString::fromWCharArray(chemin.data(), static_cast<qsizetype>(longueur));
#else
    Dl_info information = {};
    dladdr(reinterpret_cast<void*>(&LitDescription), &information);
    return QFile::decodeName(information.dli_fname);
#endif
}

} // namespace

QJsonObject LitDescription()
{
    const QFileInfo bibliotheque(CheminDeLaBibliotheque());
    QFile fichier(bibliotheque.dir().filePath(bibliotheque.completeBaseName() + QStringLiteral(".json")));
    return fichier.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(fichier.readAll()).object()
                                             : QJsonObject();
}

} // namespace essai
