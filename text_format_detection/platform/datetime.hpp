// SPDX-License-Identifier: MIT
//
// The date-time test: does a text read as a date, a time of day or both?
#pragma once

#include <string>

#include "text_format_detection/export.hpp"
#include "text_format_detection/model/field.hpp"

namespace ostrel::io::text::typeconversion {

/// True when the whole field reads as a date-time in the given format. Nothing is trimmed.
///
/// Names are English; letter case is ignored in names, AM and PM, zones and the "T" between date
/// and time. Dates must exist: months 1 to 12, days within the month, Gregorian leap years (the
/// year 0000 is one). Two-digit years are 2000 to 2099.
/// A zone is "Z", "UTC", "GMT", or a sign and hh, hhmm or hh:mm.
///
/// A format is made of pattern letters:
///   yyyy y uuuu u   year of four digits          yy     year of two digits
///   M d H h m s     one or two digits            MM dd HH hh mm ss    exactly two
///   MMM MMMM        month, abbreviated or full   E EE EEE EEEE        weekday, likewise
///   S SS ...        as many digits as letters    a      AM or PM
///   X x Z z         a zone, in runs of any length
/// Text in single quotes stands for itself, '' is one quote, and so does every character that is no
/// ASCII letter. Hours are 0 to 23 (H) or 1 to 12 (h). Of a part that is given twice the last one
/// counts. Where fields of different widths meet, any split of the digits that works is taken.
///
/// An empty format stands for the built-in forms
///   [weekday[","] spaces] date [("T" or spaces) time]
/// with dates such as 2024-01-05, 2024/1/5, 2024.1.5, 5-1-2024, 5/1/2024, 5/1/24, 5.1.2024,
/// 5-Jan-2024, 5-Jan-24, 5/Jan/2024, 5 January 2024, Jan 5, 2024 and January 5 2024 (with "-" and
/// "/" the first number may be the day or the month, whichever exists), and times such as 9:30,
/// 09:30:05, 9:30:05.125, each with an optional AM or PM and then an optional zone; and
/// 20240105T093005 with an optional zone.
///
/// Throws std::invalid_argument, whatever the field holds, for a format with an unknown letter or
/// run of letters, an unclosed quote, no field at all, or fields whose widths vary by more than 255
/// code units altogether. Allocates nothing but this exception. Takes linear time.
[[nodiscard]] TFD_API bool is_datetime(textio::Field const& field, std::u16string const& format);

}  // namespace ostrel::io::text::typeconversion
