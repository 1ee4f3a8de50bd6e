#include "ui/DateText.h"

#include <QRegularExpression>

namespace {

int numberOf(QStringView digits)
{
    int number = 0;
    for (const uint digit : digits.toUcs4())
        number = number * 10 + QChar::digitValue(digit);
    return number;
}

} // namespace

QString toText(const LocalMinute &minute)
{
    const auto padded = [](int number, int width) {
        return QStringLiteral("%1").arg(number, width, 10, QLatin1Char('0'));
    };
    const CalendarDay &day = minute.day;
    return padded(day.year, 4) + u'-' + padded(day.month, 2) + u'-' + padded(day.day, 2) + u' '
        + padded(minute.hour, 2) + u':' + padded(minute.minute, 2);
}

std::optional<LocalMinute> minuteFromText(const QString &text, const LocalMinute &otherwise)
{
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(
            QStringLiteral(R"(\s*(\d{4})-(\d\d)-(\d\d)(?:(?:T|\s+)(\d\d):(\d\d))?\s*)")),
        QRegularExpression::UseUnicodePropertiesOption);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return {};
    LocalMinute minute = otherwise;
    minute.day = {.year = numberOf(match.capturedView(1)),
                  .month = numberOf(match.capturedView(2)),
                  .day = numberOf(match.capturedView(3))};
    if (match.hasCaptured(4)) {
        minute.hour = numberOf(match.capturedView(4));
        minute.minute = numberOf(match.capturedView(5));
    }
    if (!minute.day.exists() || minute.hour > 23 || minute.minute > 59)
        return {};
    return minute;
}
