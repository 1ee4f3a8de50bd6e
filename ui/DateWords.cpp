#include "ui/DateWords.h"

#include <unicode/calendar.h>
#include <unicode/dtfmtsym.h>
#include <unicode/dtptngen.h>
#include <unicode/numsys.h>
#include <unicode/smpdtfmt.h>
#include <unicode/ubidi.h>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace {

using DateFormat = icu::DateFormat;

QString toQString(const icu::UnicodeString &text)
{
    return QString::fromUtf16(text.getBuffer(), text.length());
}

icu::UnicodeString toIcu(const QString &text)
{
    return {reinterpret_cast<const char16_t *>(text.utf16()), static_cast<int>(text.size())};
}

icu::Locale gregorian(const std::string &name)
{
    icu::Locale locale(name.c_str());
    UErrorCode status = U_ZERO_ERROR;
    locale.setKeywordValue("calendar", "gregorian", status);
    return locale;
}

QString digitsOf(const icu::Locale &locale)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::NumberingSystem> system(
        icu::NumberingSystem::createInstance(locale, status));
    if (U_SUCCESS(status) && system && !system->isAlgorithmic() && system->getRadix() == 10) {
        // Digits beyond the first plane, each of two code units, are left to the Latin ones.
        if (QString digits = toQString(system->getDescription()); digits.size() == 10)
            return digits;
    }
    return QStringLiteral("0123456789");
}

QString patternOf(DateFormat *format)
{
    icu::UnicodeString pattern;
    if (const auto *simple = dynamic_cast<icu::SimpleDateFormat *>(format))
        simple->toPattern(pattern);
    return toQString(pattern);
}

std::optional<DateField> fieldOfLetter(QChar letter)
{
    switch (letter.unicode()) {
    case u'y':
    case u'u':
        return DateField::Year;
    case u'M':
    case u'L':
        return DateField::Month;
    case u'd':
        return DateField::Day;
    case u'H':
    case u'k':
    case u'h':
    case u'K':
        return DateField::Hour;
    case u'm':
        return DateField::Minute;
    case u'a':
    case u'b':
    case u'B':
        return DateField::DayPeriod;
    default:
        return {};
    }
}

/// A field, or the text between two fields, of a date pattern.
struct Token
{
    std::optional<DateField> field;
    int letters = 0;
    QString text;
};

/// Reads a pattern's letters and texts (UTS #35): letters of one kind in a row are a field, what
/// stands between apostrophes is text, two apostrophes are one.
std::vector<Token> tokensOf(const QString &pattern)
{
    std::vector<Token> tokens;
    const auto appendText = [&tokens](QChar character) {
        if (tokens.empty() || tokens.back().field)
            tokens.emplace_back();
        tokens.back().text += character;
    };
    bool quoted = false;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar character = pattern[i];
        if (character == u'\'') {
            if (i + 1 < pattern.size() && pattern[i + 1] == u'\'')
                appendText(pattern[++i]);
            else
                quoted = !quoted;
            continue;
        }
        const auto field = quoted ? std::nullopt : fieldOfLetter(character);
        if (!field)
            appendText(character);
        else if (i > 0 && pattern[i - 1] == character && !tokens.empty() && tokens.back().field)
            ++tokens.back().letters;
        else
            tokens.push_back({.field = field, .letters = 1, .text = {}});
    }
    return tokens;
}

bool hasLetters(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

/// Text between fields as it is drawn: without the marks that only order the fields, and with
/// spaces that every font has.
QString drawnText(const QString &text, bool rightToLeft)
{
    QString drawn;
    for (const QChar character : text) {
        if (character == QChar(0x200E) || character == QChar(0x200F) || character == QChar(0x061C))
            continue;
        drawn += character.isSpace() ? QChar(QChar::Nbsp) : character;
    }
    if (rightToLeft && !hasLetters(drawn))
        std::reverse(drawn.begin(), drawn.end());
    return drawn;
}

/// The place of each token on screen, from left to right, and its direction.
struct Placed
{
    std::size_t token = 0;
    bool rightToLeft = false;
};

/// Puts tokens in the order in which the Unicode Bidirectional Algorithm (UAX #9) draws them.
std::vector<Placed> placed(const std::vector<Token> &tokens, const QStringList &samples,
                           bool rightToLeft)
{
    std::vector<std::size_t> tokenAt;
    for (std::size_t i = 0; i < tokens.size(); ++i)
        tokenAt.insert(tokenAt.end(),
                       static_cast<std::size_t>(samples[static_cast<qsizetype>(i)].size()), i);

    const icu::UnicodeString text = toIcu(samples.join(QString()));
    std::vector<int> visualMap(static_cast<std::size_t>(text.length()));
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UBiDi, decltype(&ubidi_close)> bidi(ubidi_open(), &ubidi_close);
    ubidi_setPara(bidi.get(), text.getBuffer(), text.length(), rightToLeft ? 1 : 0, nullptr,
                  &status);
    ubidi_getVisualMap(bidi.get(), visualMap.data(), &status);

    std::vector<Placed> order;
    for (const int logical : visualMap) {
        const std::size_t token = tokenAt[static_cast<std::size_t>(logical)];
        const bool seen = std::any_of(order.begin(), order.end(),
                                      [token](const Placed &p) { return p.token == token; });
        if (!seen)
            order.push_back({token, (ubidi_getLevelAt(bidi.get(), logical) & 1) != 0});
    }
    return order;
}

constexpr int widthOfYear = 4;

} // namespace

class DateWords::Locale
{
public:
    explicit Locale(const std::string &name)
        : locale(gregorian(name))
        , digits(digitsOf(locale))
        , symbols(locale, status)
        , datePattern(patternOf(std::unique_ptr<DateFormat>(
                                    DateFormat::createDateInstance(DateFormat::kShort, locale))
                                    .get()))
        , timePattern(patternOf(std::unique_ptr<DateFormat>(
                                    DateFormat::createTimeInstance(DateFormat::kShort, locale))
                                    .get()))
        , calendar(icu::Calendar::createInstance(*icu::TimeZone::getGMT(), locale, status))
    {
        full.reset(DateFormat::createDateInstance(DateFormat::kFull, locale));
        if (full)
            full->setTimeZone(*icu::TimeZone::getGMT());
        const std::unique_ptr<icu::DateTimePatternGenerator> generator(
            icu::DateTimePatternGenerator::createInstance(locale, status));
        if (!generator)
            return;
        monthAndYear = std::make_unique<icu::SimpleDateFormat>(
            generator->getBestPattern(u"yMMMM", status), locale, status);
        monthAndYear->setTimeZone(*icu::TimeZone::getGMT());
    }

    static QString format(const DateFormat *format, const CalendarDay &day)
    {
        icu::UnicodeString text;
        if (format)
            format->format(static_cast<UDate>(day.number()) * U_MILLIS_PER_DAY, text);
        return toQString(text);
    }

    UErrorCode status = U_ZERO_ERROR;
    icu::Locale locale;
    QString digits;
    icu::DateFormatSymbols symbols;
    QString datePattern;
    QString timePattern;
    std::unique_ptr<icu::Calendar> calendar;
    std::unique_ptr<DateFormat> full;
    std::unique_ptr<icu::SimpleDateFormat> monthAndYear;
};

namespace {

QList<FieldInPattern> fieldsOf(const QString &pattern, const DateWords &words, bool rightToLeft)
{
    const std::vector<Token> tokens = tokensOf(pattern);
    QStringList samples;
    for (const Token &token : tokens) {
        if (token.field == DateField::DayPeriod)
            samples += words.dayPeriod(false);
        else
            samples += token.field ? words.number(10) : token.text;
    }

    QList<FieldInPattern> fields;
    QString left;
    for (const auto &[index, isRightToLeft] : placed(tokens, samples, rightToLeft)) {
        const Token &token = tokens[index];
        if (!token.field) {
            QString &text = fields.isEmpty() ? left : fields.last().right;
            text += drawnText(token.text, isRightToLeft);
            continue;
        }
        const bool isYear = token.field == DateField::Year;
        fields += {.field = *token.field,
                   .digits = isYear ? widthOfYear : std::min(token.letters, 2),
                   .readingOrder = static_cast<int>(std::count_if(
                       tokens.begin(), tokens.begin() + static_cast<std::ptrdiff_t>(index),
                       [](const Token &t) { return t.field.has_value(); })),
                   .left = std::exchange(left, {}),
                   .right = {}};
    }
    return fields;
}

QStringList rotatedWeek(const icu::UnicodeString *names, int firstDay)
{
    // ICU counts the days of a week from 1, Sunday.
    QStringList week;
    for (int i = 0; i < 7; ++i) {
        week += toQString(names[(firstDay - 1 + i) % 7 + 1]);
        // The full stop of an abbreviation says nothing at the head of a column.
        if (week.last().endsWith(u'.'))
            week.last().chop(1);
    }
    return week;
}

} // namespace

DateWords::DateWords(const std::string &locale)
    : m_locale(std::make_unique<Locale>(locale))
{
}

DateWords::~DateWords() = default;

QList<FieldInPattern> DateWords::dateFields() const
{
    return fieldsOf(m_locale->datePattern, *this, m_locale->locale.isRightToLeft() != 0);
}

QList<FieldInPattern> DateWords::timeFields() const
{
    return fieldsOf(m_locale->timePattern, *this, m_locale->locale.isRightToLeft() != 0);
}

HourCycle DateWords::hourCycle() const
{
    for (const QChar letter : m_locale->timePattern) {
        switch (letter.unicode()) {
        case u'k':
            return HourCycle::From1To24;
        case u'h':
            return HourCycle::From12To11;
        case u'K':
            return HourCycle::From0To11;
        default:
            break;
        }
    }
    return HourCycle::From0To23;
}

QString DateWords::number(int number, int digits) const
{
    return withOwnDigits(QStringLiteral("%1").arg(number, digits, 10, QLatin1Char('0')));
}

QString DateWords::withOwnDigits(const QString &text) const
{
    QString result;
    for (const QChar character : text)
        result += character.isDigit() ? m_locale->digits[character.digitValue()] : character;
    return result;
}

QString DateWords::dayPeriod(bool afternoon) const
{
    int count = 0;
    const icu::UnicodeString *names = m_locale->symbols.getAmPmStrings(count);
    return toQString(names[afternoon ? 1 : 0]);
}

QString DateWords::monthName(int month) const
{
    int count = 0;
    const icu::UnicodeString *names = m_locale->symbols.getMonths(
        count, icu::DateFormatSymbols::STANDALONE, icu::DateFormatSymbols::WIDE);
    return month >= 1 && month <= count ? toQString(names[month - 1]) : QString();
}

QString DateWords::monthAndYear(const CalendarDay &day) const
{
    return Locale::format(m_locale->monthAndYear.get(), day);
}

QString DateWords::fullDate(const CalendarDay &day) const
{
    return Locale::format(m_locale->full.get(), day);
}

QStringList DateWords::weekdays() const
{
    using Symbols = icu::DateFormatSymbols;
    constexpr int widest = 3;
    int count = 0;
    UErrorCode status = U_ZERO_ERROR;
    const int firstDay = m_locale->calendar->getFirstDayOfWeek(status);
    QStringList names = rotatedWeek(
        m_locale->symbols.getWeekdays(count, Symbols::STANDALONE, Symbols::SHORT), firstDay);
    const bool isNarrow = std::all_of(names.begin(), names.end(),
                                      [](const QString &name) { return name.size() <= widest; });
    if (isNarrow)
        return names;
    return rotatedWeek(m_locale->symbols.getWeekdays(count, Symbols::STANDALONE, Symbols::NARROW),
                       firstDay);
}

int DateWords::dayOfWeek(const CalendarDay &day) const
{
    UErrorCode status = U_ZERO_ERROR;
    // 1 January 1970 was a Thursday, the fifth day of a week that begins on Sunday.
    constexpr qint64 thursday = 4;
    const int firstDay = m_locale->calendar->getFirstDayOfWeek(status) - 1;
    return static_cast<int>(((day.number() + thursday - firstDay) % 7 + 7) % 7);
}
