#pragma once

#include <QFile>
#include <QStringList>

#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <stdexcept>

/// Takes the rights of an ordinary user from a process that may do anything, as long as this object
/// lives. Where the process has no such rights, not as root either, nothing changes.
class OrdinaryUser
{
public:
    /// folders: directories of the tests' own, in which the user may do everything.
    explicit OrdinaryUser(const QStringList &folders)
    {
        for (const QString &folder : folders) {
            if (chmod(QFile::encodeName(folder).constData(), 0777) != 0)
                throw std::runtime_error("a folder cannot be opened to an ordinary user");
        }
        constexpr uid_t nobody = 65534;
        m_isAnother = geteuid() == superuser && setresuid(nobody, nobody, superuser) == 0;
    }

    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

    ~OrdinaryUser()
    {
        if (!m_isAnother)
            return;
        if (setresuid(superuser, superuser, superuser) != 0)
            _exit(1);
        // A change of users makes a process closed to debuggers, and to the search for leaks.
        prctl(PR_SET_DUMPABLE, 1);
    }

private:
    static constexpr uid_t superuser = 0;

    bool m_isAnother = false;
};
