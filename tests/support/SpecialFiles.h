#pragma once

#include <QFile>
#include <QString>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <stdexcept>

// Files that are no regular files, for what must leave them alone.

/// Makes a pipe that nobody reads or writes: opening it would wait for ever.
inline void makePipe(const QString &path)
{
    if (mkfifo(QFile::encodeName(path).constData(), 0666) != 0)
        throw std::runtime_error("a pipe cannot be made");
}

/// A socket that lies in the file system as long as this object lives.
class ListeningSocket
{
public:
    explicit ListeningSocket(const QString &path)
        : m_descriptor(socket(AF_UNIX, SOCK_STREAM, 0))
    {
        const QByteArray name = QFile::encodeName(path);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        if (std::size_t(name.size()) >= sizeof address.sun_path)
            throw std::runtime_error("a socket's path is too long");
        std::memcpy(address.sun_path, name.constData(), std::size_t(name.size()));
        if (bind(m_descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0
            || listen(m_descriptor, 1) != 0)
            throw std::runtime_error("a socket cannot be made");
    }

    ListeningSocket(const ListeningSocket &) = delete;
    ListeningSocket &operator=(const ListeningSocket &) = delete;

    ~ListeningSocket() { close(m_descriptor); }

private:
    int m_descriptor;
};
