#include "ui/DateWords.h"

#include "ui/MonthDays.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

/// The fields as they stand on screen, with their digits and the texts between them.
QString drawn(const QList<FieldInPattern> &fields)
{
    QString text;
    for (const FieldInPattern &field : fields) {
        static const QString letters = QStringLiteral("yMdHma");
        text += field.left + QString(field.digits, letters[static_cast<int>(field.field)])
            + field.right;
    }
    return text.replace(QChar(QChar::Nbsp), u' ');
}

/// The order in which the fields, as they stand on screen, are read.
QString order(const QList<FieldInPattern> &fields)
{
    QString digits;
    for (const FieldInPattern &field : fields)
        digits += QString::number(field.readingOrder);
    return digits;
}

struct Case
{
    const char *locale;
    const char *day;
    const char *time;
    const char *dayOrder;
    HourCycle cycle;
    const char *number; ///< 2026
    const char *week;
};

void PrintTo(const Case &words, std::ostream *out)
{
    *out << words.locale;
}

class DateWordsOf : public testing::TestWithParam<Case>
{
protected:
    DateWords words{GetParam().locale};
};

TEST_P(DateWordsOf, itsLocale)
{
    EXPECT_EQ(drawn(words.dateFields()), QString::fromUtf8(GetParam().day));
    EXPECT_EQ(drawn(words.timeFields()), QString::fromUtf8(GetParam().time));
    EXPECT_EQ(order(words.dateFields()), QString::fromUtf8(GetParam().dayOrder));
    EXPECT_EQ(words.hourCycle(), GetParam().cycle);
    EXPECT_EQ(words.number(2026), QString::fromUtf8(GetParam().number));
    EXPECT_EQ(words.weekdays().join(u' '), QString::fromUtf8(GetParam().week));
}

INSTANTIATE_TEST_SUITE_P(
    Locales, DateWordsOf,
    testing::Values(
        Case{"en_US", "M/d/yyyy", "H:mm a", "012", HourCycle::From12To11, "2026",
             "Su Mo Tu We Th Fr Sa"},
        Case{"en_GB", "dd/MM/yyyy", "HH:mm", "012", HourCycle::From0To23, "2026",
             "Mo Tu We Th Fr Sa Su"},
        Case{"de_DE", "dd.MM.yyyy", "HH:mm", "012", HourCycle::From0To23, "2026",
             "Mo Di Mi Do Fr Sa So"},
        Case{"ja_JP", "yyyy/MM/dd", "H:mm", "012", HourCycle::From0To23, "2026",
             "日 月 火 水 木 金 土"},
        Case{"ar_EG", "yyyy/M/d", "a H:mm", "210", HourCycle::From12To11, "٢٠٢٦", "س ح ن ث ر خ ج"},
        Case{"fa_IR", "yyyy/M/d", "H:mm", "012", HourCycle::From0To23, "۲۰۲۶",
             "ش ۱ش ۲ش ۳ش ۴ش ۵ش ج"},
        Case{"th_TH", "d/M/yyyy", "HH:mm", "012", HourCycle::From0To23, "2026", "อา จ อ พ พฤ ศ ส"},
        Case{"he_IL", "d.M.yyyy", "H:mm", "012", HourCycle::From0To23, "2026",
             "א׳ ב׳ ג׳ ד׳ ה׳ ו׳ ש׳"},
        Case{"ko_KR", "yyyy. M. d.", "a H:mm", "012", HourCycle::From12To11, "2026",
             "일 월 화 수 목 금 토"},
        Case{"bg_BG", "d.MM.yyyy г.", "H:mm ч.", "012", HourCycle::From0To23, "2026",
             "пн вт ср чт пт сб нд"},
        Case{"hu_HU", "yyyy. MM. dd.", "H:mm", "012", HourCycle::From0To23, "2026",
             "H K Sze Cs P Szo V"},
        Case{"sv_SE", "yyyy-MM-dd", "HH:mm", "012", HourCycle::From0To23, "2026",
             "må ti on to fr lö sö"},
        Case{"en_US_POSIX", "M/d/yyyy", "H:mm a", "012", HourCycle::From12To11, "2026",
             "Su Mo Tu We Th Fr Sa"}));

} // namespace
