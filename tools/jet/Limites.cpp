#include "Limites.h"

#include <filesystem>
#include <initializer_list>
#include <system_error>

#include <glib.h>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <sys/resource.h>
#endif

namespace jet {

namespace {

constexpr unsigned long long kMemoire = 512ULL * 1024 * 1024;
constexpr unsigned long long kSecondes = 120;
constexpr unsigned long long kOctetsParSeconde = 1024ULL * 1024; // of a very slow machine

unsigned long long Secondes(const char* fichier)
{
    std::error_code refus;
    const auto taille = std::filesystem::file_size(fichier, refus);
    return refus ? kSecondes : kSecondes + taille / kOctetsParSeconde;
}

} // namespace

#ifdef _WIN32

void PoseLimites(const char* fichier)
{
    constexpr unsigned long long kCentNanosecondes = 10000000;
    _setmode(_fileno(stdout), _O_BINARY);
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limites{};
    limites.BasicLimitInformation.LimitFlags =
        JOB_OBJECT_LIMIT_PROCESS_MEMORY | JOB_OBJECT_LIMIT_PROCESS_TIME;
    limites.BasicLimitInformation.PerProcessUserTimeLimit.QuadPart = Secondes(fichier) * kCentNanosecondes;
    limites.ProcessMemoryLimit = kMemoire;
    const HANDLE tache = CreateJobObjectW(nullptr, nullptr);
    SetInformationJobObject(tache, JobObjectExtendedLimitInformation, &limites, sizeof limites);
    AssignProcessToJobObject(tache, GetCurrentProcess());
}

#else

void PoseLimites(const char* fichier)
{
    [[maybe_unused]] const rlimit memoire{kMemoire, kMemoire};
    const unsigned long long duree = Secondes(fichier);
    const rlimit secondes{duree, duree};
    const rlimit aucune{0, 0};
#ifndef SANS_LIMITE_DE_MEMOIRE
    setrlimit(RLIMIT_AS, &memoire);
#endif
    setrlimit(RLIMIT_CPU, &secondes);
    setrlimit(RLIMIT_CORE, &aucune);
}

#endif

void OublieReglages()
{
    for (const char* nom : {"MDBICONV", "MDB_JET3_CHARSET", "MDBOPTS"}) {
        g_unsetenv(nom);
    }
}

} // namespace jet
