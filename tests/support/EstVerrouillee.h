#pragma once

#include <QString>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace support {

/// Whether another program finds a lock on the file.
inline bool EstVerrouillee(const QString& chemin)
{
    const QByteArray nom = chemin.toLocal8Bit();
    const pid_t autre = ::fork();
    if (autre == 0) {
        struct flock verrou = {};
        verrou.l_type = F_WRLCK;
        verrou.l_whence = SEEK_SET;
        const int fichier = ::open(nom.constData(), O_RDWR);
        ::_exit(::fcntl(fichier, F_GETLK, &verrou) == 0 && verrou.l_type != F_UNLCK ? 1 : 0);
    }
    int fin = 0;
    ::waitpid(autre, &fin, 0);
    return WIFEXITED(fin) && WEXITSTATUS(fin) == 1;
}

} // namespace support
#endif
