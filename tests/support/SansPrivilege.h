#pragma once

#include <QFile>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace support {

/// Lets every user into the directory, none of them may change it but its owner.
inline void OuvreATous(const QString& dossier)
{
    QFile::setPermissions(dossier, QFile::permissions(dossier) | QFile::ReadGroup | QFile::ExeGroup |
                                       QFile::ReadOther | QFile::ExeOther);
}

/// Leaves the rights of root while it lives, since nothing is read-only for root.
class SansPrivilege
{
public:
    SansPrivilege()
    {
#ifdef Q_OS_UNIX
        constexpr uid_t kPersonne = 65534;
        if (::geteuid() == 0) {
            actif_ = ::seteuid(kPersonne) == 0;
        }
#endif
    }
    ~SansPrivilege()
    {
#ifdef Q_OS_UNIX
        if (actif_ && ::seteuid(0) != 0) {
            qFatal("the test cannot take its rights back");
        }
#endif
    }

private:
    bool actif_ = false;
};

} // namespace support
