#pragma once

#include "model/Date.h"
#include "model/DateRegion.h"

#include <QString>

/// The calendar date alone, with the month's name and without the weekday ("5 January 2026"), in
/// the region's language, calendar and digits.
QString longDate(Date date, const DateRegion &region);
