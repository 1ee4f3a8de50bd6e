#pragma once

#include "ui/LocalTime.h"

#include <QString>

#include <optional>

// A date as it is copied and pasted, in any locale: "2026-01-05 14:30".

QString toText(const LocalMinute &minute);

/// Reads such a text: digits of any script, blanks around it, and "T" or blanks before the time of
/// day, which may be missing; it is that of `otherwise` then. Nothing for any other text, and for a
/// date that the calendar does not have.
std::optional<LocalMinute> minuteFromText(const QString &text, const LocalMinute &otherwise);
