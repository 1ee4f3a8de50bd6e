#pragma once

#include "model/BlogPost.h"
#include "model/RSSSettings.h"
#include "tests/support/Printers.h"

#include <QString>
#include <QUuid>

#include <rapidcheck.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

// What RapidCheck makes values of the program's types from. Texts are well-formed UTF-16 (no lone
// surrogates) and dates are finite: what both files can hold. A failing text shrinks by whole
// pieces.

// NOLINTNEXTLINE(readability-identifier-naming): as the libraries of generators have it.
namespace generators {

/// Pieces that a JSON writer, a feed writer or a search for tags could trip over.
inline rc::Gen<QString> textPiece()
{
    using namespace rc;
    static const std::vector<QString> oddities{QStringLiteral("\""),
                                               QStringLiteral("\\"),
                                               QStringLiteral("/"),
                                               QStringLiteral("\\/"),
                                               QStringLiteral("https://example.com/a?b=c&d=%20#e"),
                                               QStringLiteral("\r"),
                                               QStringLiteral("\n"),
                                               QStringLiteral("\r\n"),
                                               QStringLiteral("\t"),
                                               QStringLiteral(" "),
                                               QString(QChar(0)),
                                               QString(QChar(1)),
                                               QString(QChar(0x1f)),
                                               QString(QChar(0x7f)),
                                               QString(QChar(0x80)),
                                               QString(QChar(0x85)),
                                               QString(QChar(0xa0)),
                                               QStringLiteral("\u00e9"),
                                               QStringLiteral("e\u0301"),
                                               QStringLiteral("\u07ff\u0800"),
                                               QString(QChar(0x2028)),
                                               QString(QChar(0x2029)),
                                               QString(QChar(0xd7ff)),
                                               QString(QChar(0xe000)),
                                               QString(QChar(0xfdd0)),
                                               QString(QChar(0xfeff)),
                                               QString(QChar(0xfffd)),
                                               QString(QChar(0xfffe)),
                                               QString(QChar(0xffff)),
                                               QStringLiteral("\U00010000"),
                                               QStringLiteral("\U0001f600"),
                                               QStringLiteral("\U0010ffff"),
                                               QStringLiteral("\u0627\u0644"),
                                               QStringLiteral("\u65e5\u672c\u8a9e"),
                                               QStringLiteral("&"),
                                               QStringLiteral("<"),
                                               QStringLiteral(">"),
                                               QStringLiteral("&amp;"),
                                               QStringLiteral("&#60;"),
                                               QStringLiteral("<![CDATA["),
                                               QStringLiteral("]]>"),
                                               QStringLiteral("<item>"),
                                               QStringLiteral("</item>"),
                                               QStringLiteral("<title>"),
                                               QStringLiteral("</title>"),
                                               QStringLiteral("<link>"),
                                               QStringLiteral("</link>"),
                                               QStringLiteral("<description>"),
                                               QStringLiteral("</description>"),
                                               QStringLiteral("<item "),
                                               QStringLiteral("</item"),
                                               QStringLiteral("<Title>")};
    const auto letter =
        gen::map(gen::inRange(0x20, 0x7f), [](int code) { return QString(QChar(code)); });
    const auto anyCharacter = gen::map(
        gen::oneOf(gen::inRange<char32_t>(0, 0xd800), gen::inRange<char32_t>(0xe000, 0x110000)),
        [](char32_t character) { return QString::fromUcs4(&character, 1); });
    return gen::weightedOneOf<QString>(
        {{4, letter}, {1, anyCharacter}, {5, gen::elementOf(oddities)}});
}

/// Any finite double: dates that people use, fractions, the edges of the type, and random bits.
inline rc::Gen<double> finiteNumber()
{
    using namespace rc;
    using Limits = std::numeric_limits<double>;
    static const std::vector<double> edges{0.0,
                                           -0.0,
                                           0.1,
                                           -0.1,
                                           1e-4,
                                           9.9e-5,
                                           1e15,
                                           1e16,
                                           9999999999999998.0,
                                           788918400.0,
                                           -978307200.0,
                                           Limits::denorm_min(),
                                           Limits::min(),
                                           Limits::max(),
                                           Limits::lowest(),
                                           Limits::epsilon()};
    const auto bits = gen::resize(kNominalSize, gen::arbitrary<std::uint64_t>());
    const auto ofBits = gen::suchThat(
        gen::map(bits, [](std::uint64_t pattern) { return std::bit_cast<double>(pattern); }),
        [](double number) { return std::isfinite(number); });
    const auto thousandth =
        gen::map(gen::inRange<std::int64_t>(-4'000'000'000'000, 4'000'000'000'000),
                 [](std::int64_t count) { return double(count) / 1000; });
    const auto whole = gen::map(gen::inRange<std::int64_t>(-4'000'000'000, 4'000'000'000),
                                [](std::int64_t seconds) { return double(seconds); });
    return gen::oneOf(whole, thousandth, ofBits, gen::elementOf(edges));
}

} // namespace generators

namespace rc {

template <>
struct Arbitrary<QString>
{
    static Gen<QString> arbitrary()
    {
        return gen::map(gen::container<std::vector<QString>>(generators::textPiece()),
                        [](const std::vector<QString> &pieces) {
                            QString text;
                            for (const QString &piece : pieces)
                                text += piece;
                            return text;
                        });
    }
};

template <>
struct Arbitrary<QUuid>
{
    static Gen<QUuid> arbitrary()
    {
        const auto bytes = gen::resize(
            kNominalSize,
            gen::container<std::array<std::uint8_t, 16>>(gen::arbitrary<std::uint8_t>()));
        const auto any = gen::map(bytes, [](const std::array<std::uint8_t, 16> &id) {
            return QUuid::fromRfc4122(
                QByteArrayView(reinterpret_cast<const char *>(id.data()), qsizetype(id.size())));
        });
        return gen::weightedOneOf<QUuid>({{9, any}, {1, gen::just(QUuid())}});
    }
};

template <>
struct Arbitrary<Date>
{
    static Gen<Date> arbitrary()
    {
        return gen::map(generators::finiteNumber(), [](double seconds) { return Date(seconds); });
    }
};

template <>
struct Arbitrary<BlogPost>
{
    static Gen<BlogPost> arbitrary()
    {
        return gen::apply(
            [](const QUuid &id, const QString &title, const QString &content, Date date,
               const QString &description, const QString &permalink) {
                return BlogPost{.id = id,
                                .title = title,
                                .content = content,
                                .date = date,
                                .description = description,
                                .permalink = permalink};
            },
            gen::arbitrary<QUuid>(), gen::arbitrary<QString>(), gen::arbitrary<QString>(),
            gen::arbitrary<Date>(), gen::arbitrary<QString>(), gen::arbitrary<QString>());
    }
};

template <>
struct Arbitrary<BlogPosts>
{
    static Gen<BlogPosts> arbitrary()
    {
        return gen::map(gen::arbitrary<std::vector<BlogPost>>(),
                        [](const std::vector<BlogPost> &posts) {
                            return BlogPosts(posts.begin(), posts.end());
                        });
    }
};

template <>
struct Arbitrary<RSSSettings>
{
    static Gen<RSSSettings> arbitrary()
    {
        return gen::apply(
            [](const QString &title, const QString &link, const QString &description) {
                return RSSSettings{title, link, description};
            },
            gen::arbitrary<QString>(), gen::arbitrary<QString>(), gen::arbitrary<QString>());
    }
};

} // namespace rc
