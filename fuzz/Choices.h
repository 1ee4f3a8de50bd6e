#pragma once

#include <QByteArray>
#include <QString>

#include <bit>
#include <cstdint>

/// A fuzzer's input read as a sequence of choices. Beyond its end all of them are zero.
class Choices
{
public:
    Choices(const unsigned char *data, std::size_t size)
        : m_bytes(reinterpret_cast<const char *>(data), qsizetype(size))
    {
    }

    bool atEnd() const { return m_next == m_bytes.size(); }

    unsigned byte() { return atEnd() ? 0 : std::uint8_t(m_bytes[m_next++]); }

    /// One of so many.
    qsizetype below(qsizetype count) { return count > 0 ? qsizetype(byte()) % count : 0; }

    /// A run of bytes, behind its length.
    QByteArray bytes()
    {
        const QByteArray taken = m_bytes.mid(m_next, byte());
        m_next = qMin(m_next + taken.size(), m_bytes.size());
        return taken;
    }

    std::uint64_t word()
    {
        std::uint64_t bits = 0;
        for (int i = 0; i < 8; ++i)
            bits = (bits << 8) | byte();
        return bits;
    }

    /// Any double: of few bytes as people have it, or of any bits.
    double number()
    {
        const unsigned kind = byte();
        if (kind < 100)
            return double(kind) * 86400.25;
        return kind < 180 ? double(std::int64_t(word()) >> 24) / 1000
                          : std::bit_cast<double>(word());
    }

    /// A text of Latin letters, of any UTF-8, or of any code units, lone surrogates among them.
    QString text()
    {
        const unsigned kind = byte() % 4;
        const QByteArray raw = bytes();
        if (kind == 0)
            return QString::fromUtf8(raw);
        if (kind < 3)
            return QString::fromLatin1(raw);
        QString units;
        for (qsizetype i = 0; i + 1 < raw.size(); i += 2)
            units += QChar(std::uint8_t(raw[i]), std::uint8_t(raw[i + 1]));
        return units;
    }

private:
    QByteArray m_bytes;
    qsizetype m_next = 0;
};
