#include "Limites.h"

#include <initializer_list>

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

} // namespace

#ifdef _WIN32

void PoseLimites()
{
    constexpr unsigned long long kCentNanosecondes = 10000000;
    _setmode(_fileno(stdout), _O_BINARY);
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limites{};
    limites.BasicLimitInformation.LimitFlags =
        JOB_OBJECT_LIMIT_PROCESS_MEMORY | JOB_OBJECT_LIMIT_PROCESS_TIME;
    limites.BasicLimitInformation.PerProcessUserTimeLimit.QuadPart = kSecondes * kCentNanosecondes;
    limites.ProcessMemoryLimit = kMemoire;
    const HANDLE tache = CreateJobObjectW(nullptr, nullptr);
    SetInformationJobObject(tache, JobObjectExtendedLimitInformation, &limites, sizeof limites);
    AssignProcessToJobObject(tache, GetCurrentProcess());
}

#else

void PoseLimites()
{
    [[maybe_unused]] const rlimit memoire{kMemoire, kMemoire};
    const rlimit secondes{kSecondes, kSecondes};
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
