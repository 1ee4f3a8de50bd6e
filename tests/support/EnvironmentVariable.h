#pragma once

#include <QByteArray>

#include <optional>
#include <utility>

/// Gives an environment variable another value, or none, for as long as this object lives.
class EnvironmentVariable
{
public:
    EnvironmentVariable(const char *name, std::optional<QByteArray> value)
        : m_name(name)
    {
        if (qEnvironmentVariableIsSet(name))
            m_before = qgetenv(name);
        set(std::move(value));
    }

    EnvironmentVariable(const EnvironmentVariable &) = delete;
    EnvironmentVariable &operator=(const EnvironmentVariable &) = delete;

    ~EnvironmentVariable() { set(m_before); }

    /// Nothing unsets the variable; an empty value leaves it set.
    void set(std::optional<QByteArray> value) const
    {
        if (value)
            qputenv(m_name, *value);
        else
            qunsetenv(m_name);
    }

private:
    const char *m_name;
    std::optional<QByteArray> m_before;
};
