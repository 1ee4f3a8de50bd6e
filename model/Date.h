#pragma once

#include <QMetaType>

#include <bit>

/// An instant: seconds in a 64-bit float relative to the reference date, 2001-01-01 00:00:00 UTC.
///
/// Any double is a Date, NaN and the infinities too; the same bits go from file to form to file.
class Date
{
public:
    /// The reference date itself, in seconds of Unix time.
    static constexpr qint64 referenceDateInUnixTime = 978'307'200;

    constexpr Date() = default;
    constexpr explicit Date(double secondsSinceReferenceDate)
        : m_seconds(secondsSinceReferenceDate)
    {
    }

    /// The system clock's reading, in microseconds where the system has them.
    static Date now();

    constexpr double secondsSinceReferenceDate() const { return m_seconds; }

    /// The instant's bits, which tell a date that was kept from one that only equals it.
    constexpr quint64 bits() const { return std::bit_cast<quint64>(m_seconds); }

    /// The whole second at or before this instant, in Unix time: a date that no calendar reaches
    /// gives the nearest second that one does (about 5.8 million years either way), NaN gives the
    /// reference date.
    qint64 wholeSecondsOfUnixTime() const;

    /// The same exact instant: 0.0 equals -0.0, NaN equals nothing.
    friend constexpr bool operator==(Date, Date) = default;

private:
    double m_seconds = 0;
};

Q_DECLARE_METATYPE(Date)
