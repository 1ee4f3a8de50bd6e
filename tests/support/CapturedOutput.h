#pragma once

#include <QByteArray>
#include <QTemporaryFile>

#include <unistd.h>

#include <cstdio>
#include <stdexcept>

/// Takes what the process writes to a standard stream, Qt's messages on standard error too, for as
/// long as this object lives.
class CapturedOutput
{
public:
    explicit CapturedOutput(std::FILE *stream)
        : m_stream(stream)
        , m_descriptor(fileno(stream))
        , m_before(dup(m_descriptor))
    {
        std::fflush(m_stream);
        if (!m_file.open() || m_before < 0 || dup2(m_file.handle(), m_descriptor) < 0)
            throw std::runtime_error("a standard stream cannot be captured");
    }

    CapturedOutput(const CapturedOutput &) = delete;
    CapturedOutput &operator=(const CapturedOutput &) = delete;

    ~CapturedOutput()
    {
        std::fflush(m_stream);
        dup2(m_before, m_descriptor);
        close(m_before);
    }

    /// Everything that has left the process so far. What is still in the stream's buffer has not.
    QByteArray text()
    {
        m_file.seek(0);
        QByteArray all = m_file.readAll();
        m_file.seek(m_file.size());
        return all;
    }

private:
    std::FILE *m_stream;
    int m_descriptor;
    int m_before;
    QTemporaryFile m_file;
};
